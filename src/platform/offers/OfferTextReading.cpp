// SPDX-License-Identifier: MIT
#include <platform/PasteboardText.h>
#include <platform_offers/OfferTextReading.h>

#include <utility>

namespace quorvane {

OfferTextReading::OfferTextReading(
    MainQueue& queue, OfferSource source, const Limits& limits, Pasteboard::TextHandler done)
    : m_queue(queue),
      m_source(std::move(source)),
      m_limits(limits),
      m_done(std::move(done)),
      m_begin(queue.after(Seconds(0), [this] { begin(); })),
      m_end(queue.after(limits.all, [this] { finish(std::nullopt); })) {
}

void OfferTextReading::begin() {
    if (m_source.atHand) {
        const auto text = textOf(*m_source.atHand);
        const bool isShort = text && text->toUtf8().size() <= m_limits.bytes;
        return finish(isShort ? text : std::nullopt);
    }
    const auto offered = m_source.offer->types();
    for (const auto& type : plainTextTypes()) {
        if (offered.contains(type))
            m_unasked.append(type);
    }
    ask();
}

void OfferTextReading::ask() {
    if (m_unasked.isEmpty())
        return finish(std::nullopt);
    awaitProgress();
    const auto type = m_unasked.takeFirst();
    m_reading = m_source.offer->read(
        type,
        m_limits.bytes,
        {[this] { awaitProgress(); },
         [this, type](const std::optional<ForgottenBytes>& bytes) {
             take(type, bytes);
         }});
    if (!m_reading)
        finish(std::nullopt);
}

void OfferTextReading::awaitProgress() {
    m_silence = m_queue.after(m_limits.silence, [this] { finish(std::nullopt); });
}

// An owner that has no such text closes the pipe without a word.
void OfferTextReading::take(const QString& type, const std::optional<ForgottenBytes>& bytes) {
    if (!bytes)
        return finish(std::nullopt);
    if (bytes->isEmpty())
        return ask();
    finish(textOf({{type, *bytes, {}}}));
}

void OfferTextReading::finish(const std::optional<QString>& text) {
    m_reading.reset();
    m_begin.cancel();
    m_silence.cancel();
    m_end.cancel();
    const auto done = std::move(m_done);
    done(text);
}

} // namespace quorvane
