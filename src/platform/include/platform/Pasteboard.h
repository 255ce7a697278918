// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteTarget.h>
#include <platform/PasteboardContents.h>
#include <platform/PasteboardRequest.h>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// How long a text is meant to stay on the pasteboard.
enum class TextStay {
    Lasting, ///< the user copied it
    Passing, ///< only for an insertion: clipboard histories are told to ignore it, and it is also
             ///< PRIMARY where the front window pastes from that
};

/// What became of a text that was to be put on the pasteboard.
enum class PutOutcome {
    Taken,
    Refused, ///< another program's contents stand there, or there is no pasteboard
};

/// The general pasteboard (the clipboard) of the desktop.
class Pasteboard {
public:
    using SaveHandler = std::function<void(PasteboardContents)>;
    using TextHandler = std::function<void(std::optional<QString>)>;

    virtual ~Pasteboard() = default;

    /// Reads everything that the pasteboard holds, and the second pasteboard too where the text is
    /// to pass through that, and hands it to `done`, in a later iteration of the event loop, a
    /// second from now at most, or two where somebody copies meanwhile: that is read instead. An
    /// owner that stays silent for 0.3 s is cut off, and what was read until then is handed over.
    virtual void save(PasteSource source, SaveHandler done) = 0;

    virtual void clear() = 0;

    /// Puts one plain text, as the only type. The source is where the window in front pastes from;
    /// a lasting text goes to the clipboard alone, whatever it is.
    [[nodiscard]] virtual PutOutcome
    setString(const QString& text, TextStay stay, PasteSource source) = 0;

    /// Gives back what a save found before a passing text: only where that text still stands, which
    /// is decided for either pasteboard by itself. Where the text is ours that happens at once.
    /// Another owner is asked for its text, for 0.3 s at most: exactly the passing text is the copy
    /// of a clipboard manager and is replaced; anything else, and no answer, is the user's and
    /// stays. An empty item leaves the pasteboard empty; without a selection the second one is left
    /// alone. `done` runs in a later iteration of the event loop.
    [[nodiscard]] virtual std::unique_ptr<PasteboardRequest> restore(
        PasteboardItem item,
        std::optional<PasteboardItem> selection,
        std::function<void()> done) = 0;

    /// Reads one plain text and hands it to `done`, in a later iteration of the event loop, at most
    /// a second from now; none where there is no text, where its owner stays silent for 0.3 s, and
    /// where it is longer than `longestText`.
    [[nodiscard]] virtual std::unique_ptr<PasteboardRequest>
    readText(PasteSource source, TextHandler done) = 0;

    /// The same with the text that another program drags at this moment.
    [[nodiscard]] virtual std::unique_ptr<PasteboardRequest> readDraggedText(TextHandler done) = 0;

    /// Of a text that is read, in bytes of UTF-8.
    static constexpr qsizetype longestText = 1'048'576;

    /// Before the process ends: leaves what we own to the desktop's clipboard manager, if there is
    /// one; but nothing that asks clipboard histories to look away. `done` runs in a later
    /// event-loop iteration, at most a second from now.
    virtual void handOver(std::function<void()> done) = 0;
};

} // namespace quorvane
