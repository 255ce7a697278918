// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>
#include <x11_clipboard/X11SelectionConversion.h>
#include <x11_clipboard/X11SelectionSource.h>

#include <QStringList>

#include <memory>

namespace quorvane {

/// Reads one plain text from a selection.
class X11TextReading final : public PasteboardRequest {
public:
    struct Limits {
        Seconds silence; ///< an owner that sends nothing for this long is cut off
        Seconds all;     ///< and in any case after this long
        qsizetype bytes; ///< a longer text counts as none
    };

    /// Inbox and queue must outlive it.
    X11TextReading(
        X11SelectionInbox& inbox,
        const X11SelectionSource& source,
        xcb_timestamp_t time,
        const Limits& limits,
        Pasteboard::TextHandler done);

private:
    void finishSoon(const std::optional<QString>& text);
    void ask();
    void awaitProgress();
    void take(const X11SelectionConversion::Answer& answer);
    void finish(const std::optional<QString>& text);

    X11SelectionInbox& m_inbox;
    xcb_atom_t m_selection;
    xcb_timestamp_t m_time;
    Limits m_limits;
    Pasteboard::TextHandler m_done;
    QStringList m_unasked;
    std::unique_ptr<X11SelectionConversion> m_conversion;
    Deadline m_soon;
    Deadline m_silence;
    Deadline m_end;
};

} // namespace quorvane
