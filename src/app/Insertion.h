// SPDX-License-Identifier: MIT
#pragma once

#include "CopyReason.h"
#include "TypingConsent.h"

#include <delivery/TextInserter.h>
#include <loop/DeadlineSet.h>
#include <loop/MainQueue.h>
#include <platform/Workspace.h>

#include <QString>

#include <functional>
#include <optional>

namespace quorvane {

/// The course of an insertion once the interface is hidden: activates the application that was in
/// front, and pastes into it. Its pauses are those of `delivery/InsertionDelays.h`. Where the text
/// cannot be typed it is copied. Where the user's consent is due it is asked for first; the text is
/// then typed if the target has come to the front again by itself.
class Insertion final {
public:
    /// All must outlive the insertion.
    struct Dependencies {
        Workspace& workspace;
        const AccessibilityRight& accessibilityRight;
        TypingConsent& consent;
        Pasteboard& pasteboard;
        KeyPoster& keyPoster;
        MainQueue& mainQueue;
    };

    struct Callbacks {
        /// The keys are posted.
        std::function<void()> onTyped;
        /// The text stands on the pasteboard for good.
        std::function<void(CopyReason)> onCopied;
    };

    Insertion(Dependencies dependencies, Callbacks callbacks);

    /// Starts one, or if one is under way waits until its keys are posted. Only one waits: further
    /// ones are dropped with a line in the log, so that a flood of requests comes to an end. While
    /// the desktop asks the user about typing nothing waits for the answer but what asked: the text
    /// of any other one is copied at once.
    ///
    /// Where the desktop cannot tell what is in front, the text goes to whatever has the focus when
    /// the keys are posted. Elsewhere it goes to the target or nowhere: when that is not in front
    /// then, or another program has taken the keyboard, nothing is posted.
    void start(const QString& text, const FrontmostApplication& target);

    /// Drops what has not been pasted yet and restores the pasteboard at once, for the end of the
    /// process; `done` runs when the user's clipboard is back, in a later event-loop iteration.
    void finish(std::function<void()> done);

private:
    struct Request {
        QString text;
        FrontmostApplication target;
    };

    void begin(const Request& request);
    void ask(const Request& request);
    void approach(const Request& request);
    void activate(const Request& request);
    void deliver(const Request& request);
    void conclude(const Request& request, InsertionOutcome outcome);
    void copyInstead(const QString& text, CopyReason reason);
    void beginNext();
    [[nodiscard]] bool isReached(const FrontmostApplication& target) const;

    Dependencies m_dependencies;
    Callbacks m_callbacks;
    TextInserter m_inserter;
    DeadlineSet m_steps;
    bool m_isUnderWay = false;
    std::optional<Request> m_waiting;
};

} // namespace quorvane
