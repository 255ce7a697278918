// SPDX-License-Identifier: MIT
#include "X11PlainText.h"

#include <x11_clipboard/X11TextReading.h>

#include <utility>

namespace quorvane {

namespace {

std::optional<QString> boundedTextOf(const PasteboardItem& item, qsizetype maxBytes) {
    const auto text = textOf(item);
    return text && text->toUtf8().size() <= maxBytes ? text : std::nullopt;
}

} // namespace

X11TextReading::X11TextReading(
    X11SelectionInbox& inbox,
    const X11SelectionSource& source,
    xcb_timestamp_t time,
    const Limits& limits,
    Pasteboard::TextHandler done)
    : m_inbox(inbox),
      m_selection(source.selection),
      m_time(time),
      m_limits(limits),
      m_done(std::move(done)),
      m_unasked(plainTextTypes()),
      m_end(inbox.queue().after(limits.all, [this] { finish(std::nullopt); })) {
    if (source.atHand)
        finishSoon(boundedTextOf(*source.atHand, limits.bytes));
    else
        ask();
}

void X11TextReading::finishSoon(const std::optional<QString>& text) {
    m_soon = m_inbox.queue().after(Seconds(0), [this, text] { finish(text); });
}

void X11TextReading::ask() {
    awaitProgress();
    const auto target = m_inbox.connection()->atom(m_unasked.front());
    m_conversion = std::make_unique<X11SelectionConversion>(
        m_inbox,
        X11SelectionRequest{m_selection, target, m_time, m_limits.bytes},
        X11SelectionConversion::Callbacks{
            [this] { awaitProgress(); },
            [this](const X11SelectionConversion::Answer& answer) {
                take(answer);
            }});
}

void X11TextReading::awaitProgress() {
    m_silence = m_inbox.queue().after(m_limits.silence, [this] { finish(std::nullopt); });
}

void X11TextReading::take(const X11SelectionConversion::Answer& answer) {
    const auto target = m_unasked.takeFirst();
    if (answer && answer->isCut)
        return finish(std::nullopt);
    const auto text =
        answer ? textOf({{target, answer->value.bytes, {}, answer->value.unitBits}}) : std::nullopt;
    if (text || m_unasked.isEmpty())
        finish(text);
    else
        ask();
}

void X11TextReading::finish(const std::optional<QString>& text) {
    m_conversion.reset();
    m_silence.cancel();
    m_end.cancel();
    const auto done = std::move(m_done);
    done(text);
}

} // namespace quorvane
