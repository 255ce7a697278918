// SPDX-License-Identifier: MIT
#include <platform/PasteboardTypes.h>

#include <QLoggingCategory>

#include <utility>
#include <wayland_clipboard/WaylandSelectionSave.h>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcSave, "quorvane.pasteboard.save", QtFatalMsg)

} // namespace

WaylandSelectionSave::WaylandSelectionSave(
    MainQueue& queue, std::shared_ptr<DataOffer> offer, Done done, qsizetype mostBytes)
    : m_queue(queue),
      m_offer(std::move(offer)),
      m_done(std::move(done)),
      m_types(contentTypes(m_offer->types())),
      m_unread(readingOrder(m_types)),
      m_bytesLeft(mostBytes),
      m_begin(queue.after(Seconds(0), [this] { readNext(); })) {
}

void WaylandSelectionSave::awaitProgress() {
    m_silence = m_queue.after(longestSilence, [this] {
        qCDebug(lcSave, "the owner is silent, %lld types unread", m_unread.size());
        finish();
    });
}

void WaylandSelectionSave::readNext() {
    while (!m_unread.isEmpty()) {
        awaitProgress();
        const auto type = m_unread.front();
        m_reading = PipeReading::begin(
            [this, &type](int descriptor) { m_offer->receive(type, descriptor); },
            m_bytesLeft,
            {[this] { awaitProgress(); },
             [this, type](std::optional<QByteArray> bytes) {
                 take(type, std::move(bytes));
             }});
        if (m_reading)
            return;
        m_unread.removeFirst();
    }
    finish();
}

void WaylandSelectionSave::take(const QString& type, std::optional<QByteArray> bytes) {
    m_unread.removeFirst();
    if (bytes) {
        m_bytesLeft -= bytes->size();
        m_read[type] = *std::move(bytes);
    } else {
        qCDebug(lcSave, "%ls cannot be read, or is too long", qUtf16Printable(type));
    }
    readNext();
}

void WaylandSelectionSave::finish() {
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
