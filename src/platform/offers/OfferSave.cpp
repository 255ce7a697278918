// SPDX-License-Identifier: MIT
#include <platform/PasteboardTypes.h>
#include <platform_offers/OfferSave.h>

#include <QLoggingCategory>

#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcSave, "quorvane.pasteboard.save", QtFatalMsg)

} // namespace

OfferSave::OfferSave(
    MainQueue& queue, std::shared_ptr<DataOffer> offer, Done done, qsizetype mostBytes)
    : m_queue(queue),
      m_offer(std::move(offer)),
      m_done(std::move(done)),
      m_types(contentTypes(m_offer->types())),
      m_unread(readingOrder(m_types)),
      m_bytesLeft(mostBytes),
      m_begin(queue.after(Seconds(0), [this] { readNext(); })) {
}

void OfferSave::awaitProgress() {
    m_silence = m_queue.after(longestSilence, [this] {
        qCDebug(lcSave, "the owner is silent, %lld types unread", m_unread.size());
        finish();
    });
}

void OfferSave::readNext() {
    while (!m_unread.isEmpty()) {
        awaitProgress();
        const auto type = m_unread.front();
        m_reading = m_offer->read(
            type,
            m_bytesLeft,
            {[this] { awaitProgress(); },
             [this, type](std::optional<ForgottenBytes> bytes) {
                 take(type, std::move(bytes));
             }});
        if (m_reading)
            return;
        m_unread.removeFirst();
    }
    finish();
}

void OfferSave::take(const QString& type, std::optional<ForgottenBytes> bytes) {
    m_unread.removeFirst();
    if (bytes) {
        m_bytesLeft -= bytes->size();
        m_read[type] = *std::move(bytes);
    } else {
        qCDebug(lcSave, "%ls cannot be read, or is too long", qUtf16Printable(type));
    }
    readNext();
}

void OfferSave::finish() {
    m_reading.reset();
    m_silence.cancel();
    m_begin.cancel();
    PasteboardItem item;
    for (const auto& type : std::as_const(m_types)) {
        if (auto entry = m_read.extract(type))
            item.push_back({type, std::move(entry.mapped()), {}});
    }
    const auto done = std::move(m_done);
    done(std::move(item));
}

} // namespace quorvane
