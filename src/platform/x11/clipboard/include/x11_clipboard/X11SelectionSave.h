// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PasteboardContents.h>
#include <x11_clipboard/X11SelectionConversion.h>
#include <x11_clipboard/X11SelectionInbox.h>

#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace quorvane {

/// Reads everything that another program's selection holds, one target after the other.
class X11SelectionSave {
public:
    using Done = std::function<void(PasteboardItem)>;

    /// An owner that sends nothing for this long is cut off.
    static constexpr Seconds longestSilence{0.3};
    /// And in any case after this long.
    static constexpr Seconds longestSave{1.0};

    /// Of an owner's targets, the first.
    static constexpr qsizetype mostTargets = 256;
    /// Bytes in all.
    static constexpr qsizetype largestSave = 268'435'456;

    /// Calls `done` once, in a later event-loop iteration, with what was read, in the owner's
    /// order; it may destroy the save. Destroying it earlier gives up. All requests carry the same
    /// time, so that a later owner of the selection can tell that the request is not for it. A
    /// target that does not fit in what is left of `mostBytes` is dropped. Inbox and queue must
    /// outlive it.
    X11SelectionSave(
        X11SelectionInbox& inbox,
        MainQueue& queue,
        xcb_atom_t selection,
        xcb_timestamp_t time,
        Done done,
        qsizetype mostBytes = largestSave);

    X11SelectionSave(const X11SelectionSave&) = delete;
    X11SelectionSave& operator=(const X11SelectionSave&) = delete;

private:
    using Answer = X11SelectionConversion::Answer;

    void ask(xcb_atom_t target, qsizetype maxBytes, std::function<void(Answer)> then);
    void awaitProgress();
    void takeTargets(const Answer& answer);
    void noteTargets(const std::vector<xcb_atom_t>& atoms);
    void readNext();
    void takeContents(const QString& target, const Answer& answer);
    void keep(const QString& target, const X11PropertyValue& value);
    void finish();

    X11SelectionInbox& m_inbox;
    MainQueue& m_queue;
    xcb_atom_t m_selection;
    xcb_timestamp_t m_time;
    Done m_done;
    QStringList m_targets; ///< in the owner's order
    std::map<QString, xcb_atom_t> m_atoms;
    QStringList m_unread; ///< in the order of reading
    std::map<QString, PasteboardEntry> m_read;
    qsizetype m_bytesLeft;
    std::unique_ptr<X11SelectionConversion> m_conversion;
    Deadline m_silence;
    Deadline m_end;
};

} // namespace quorvane
