// SPDX-License-Identifier: MIT
#pragma once

#include <delivery/InsertionOutcome.h>
#include <loop/MainQueue.h>
#include <platform/AccessibilityRight.h>
#include <platform/KeyPoster.h>
#include <platform/Pasteboard.h>

#include <QString>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// Pastes a text into the application in front and gives the pasteboard back what it held.
class TextInserter final {
public:
    /// What the inserter works with; all must outlive it.
    struct Dependencies {
        const AccessibilityRight& accessibilityRight;
        Pasteboard& pasteboard;
        KeyPoster& keyPoster;
        MainQueue& mainQueue;
    };

    using Done = std::function<void(InsertionOutcome)>;

    explicit TextInserter(Dependencies dependencies);
    ~TextInserter();

    TextInserter(const TextInserter&) = delete;
    TextInserter& operator=(const TextInserter&) = delete;

    /// Saves the pasteboard, puts the text on it, posts the paste keys, and restores the pasteboard
    /// `insertiondelay::beforeRestore` later, whether or not the keys reached anything. Without the
    /// accessibility right it does none of this, and asks nobody for it.
    /// Where the pasteboard does not take the text no keys are posted: they would paste something
    /// else. `done` is called once, when no more keys will come of it, maybe before this returns.
    ///
    /// An insertion waits until the keys of the one before it are posted. While a restore is due it
    /// takes over what is to be put back, wherever the text of the earlier one still stands.
    /// At debug level the log (quorvane.insert) tells the types and sizes of what was saved and put
    /// back.
    void insert(
        const QString& text, Done done = [](InsertionOutcome) {});

    /// Gives up insertions whose keys are not posted yet, without a word to those that wait for
    /// them, and runs at once the restore that is still due. For the end of the process. `done`
    /// runs when the user's clipboard is back, in a later iteration of the event loop.
    void finish(std::function<void()> done);

private:
    /// No target: nothing to post.
    using Target = std::optional<PasteTarget>;

    struct Request {
        QString text;
        Done done;
    };

    void begin(Request request);
    void paste(const Request& request, const Target& target, PasteboardContents found);
    void post(const Request& request, const PasteTarget& target);
    void conclude(const Request& request, InsertionOutcome outcome);
    void beginNext();
    [[nodiscard]] PasteboardContents usersContents(PasteboardContents found);
    void restore(std::function<void()> done);

    Dependencies m_dependencies;
    std::deque<Request> m_waiting;
    bool m_isUnderWay = false;                 ///< from the save until the keys are posted
    std::optional<PasteboardContents> m_saved; ///< what is to be put back, while that is due
    Deadline m_restoreDue;
    std::unique_ptr<PasteboardRequest> m_restoring;
    Deadline m_finished;
    /// Held weakly by the insertion under way; a step of it that ends after this was replaced or
    /// destroyed is dropped.
    std::shared_ptr<const bool> m_stepsWanted;
};

} // namespace quorvane
