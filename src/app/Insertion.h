// SPDX-License-Identifier: MIT
#pragma once

#include <delivery/TextInserter.h>
#include <loop/DeadlineSet.h>
#include <loop/MainQueue.h>

#include <QString>

#include <functional>

namespace quorvane {

class PreviousFrontmostApp;

/// The course of an insertion once the interface is hidden: activates the application that was in
/// front before, and pastes into it. Its pauses are those of `delivery/InsertionDelays.h`.
class Insertion final {
public:
    /// All must outlive the insertion.
    struct Dependencies {
        PreviousFrontmostApp& previousFrontmostApp;
        AccessibilityRight& accessibilityRight;
        Pasteboard& pasteboard;
        KeyPoster& keyPoster;
        MainQueue& mainQueue;
    };

    explicit Insertion(Dependencies dependencies);

    /// Starts one; insertions may overlap. If no application is remembered, the text goes to
    /// whichever has the focus when the keys are posted.
    void start(const QString& text);

    /// Drops what has not been pasted yet and restores the pasteboard at once, for the end of the
    /// process; `done` runs when the user's clipboard is back, in a later event-loop iteration.
    void finish(std::function<void()> done);

private:
    PreviousFrontmostApp& m_previousFrontmostApp;
    MainQueue& m_mainQueue;
    TextInserter m_inserter;
    DeadlineSet m_steps;
};

} // namespace quorvane
