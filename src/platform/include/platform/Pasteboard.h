// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardContents.h>

#include <functional>

namespace quorvane {

/// How long a text is meant to stay on the pasteboard.
enum class TextStay {
    Lasting, ///< the user copied it
    Passing, ///< only for an insertion: clipboard histories are told to ignore it, and it is also
             ///< PRIMARY where the front window pastes from that
};

/// The general pasteboard (the clipboard) of the desktop.
class Pasteboard {
public:
    using SaveHandler = std::function<void(PasteboardContents)>;

    virtual ~Pasteboard() = default;

    /// Reads everything that the pasteboard holds and hands it to `done`, in a later iteration of
    /// the event loop, at most a second from now: an owner that stays silent for 0.3 s is cut off,
    /// and what was read until then is handed over.
    virtual void save(SaveHandler done) = 0;

    virtual void clear() = 0;

    /// Puts one plain text, as the only type.
    virtual void setString(const QString& text, TextStay stay) = 0;

    /// Puts the items as one, with the types of all; nothing where there are none.
    virtual void
    write(const PasteboardItem& item, const std::optional<PasteboardItem>& selection) = 0;

    /// Before the process ends: leaves what we own to the desktop's clipboard manager, if there is
    /// one. `done` runs in a later event-loop iteration, at most a second from now.
    virtual void handOver(std::function<void()> done) = 0;
};

} // namespace quorvane
