// SPDX-License-Identifier: MIT
#pragma once

#include <loop/DeadlineSet.h>
#include <loop/MainQueue.h>
#include <platform/AccessibilityRight.h>
#include <platform/KeyPoster.h>
#include <platform/Pasteboard.h>

#include <QString>

#include <map>
#include <memory>
#include <optional>

namespace quorvane {

/// Pastes a text into the application in front and gives the pasteboard back what it held.
class TextInserter final {
public:
    /// What the inserter works with; all must outlive it.
    struct Dependencies {
        AccessibilityRight& accessibilityRight;
        Pasteboard& pasteboard;
        KeyPoster& keyPoster;
        MainQueue& mainQueue;
    };

    explicit TextInserter(Dependencies dependencies);
    ~TextInserter();

    TextInserter(const TextInserter&) = delete;
    TextInserter& operator=(const TextInserter&) = delete;

    /// Saves the pasteboard, puts the text on it, posts the paste keys, and restores the pasteboard
    /// `insertiondelay::beforeRestore` later, whether or not the keys reached anything. Without the
    /// accessibility right it does none of this: it lets the desktop ask the user for the right.
    ///
    /// Insertions may overlap: each saves what the pasteboard holds just before it pastes.
    /// At debug level the log (quorvane.insert) tells the types and sizes of what was saved and put
    /// back.
    void insert(const QString& text);

    /// Runs at once the restores that are still due, in the order of their insertions, and gives up
    /// insertions that are still being saved. For the end of the process.
    void finish();

private:
    /// What is still to be put back; numbered in the order of the insertions.
    using PendingRestores = std::map<int, PasteboardContents>;

    /// No target: nothing to post.
    using Target = std::optional<PasteTarget>;

    void paste(const QString& text, const Target& target, PasteboardContents saved);
    void post(const Target& target);
    void scheduleRestore(PasteboardContents saved);
    void restore(const PasteboardContents& saved);

    Dependencies m_dependencies;
    PendingRestores m_pending;
    int m_nextRestore = 0;
    DeadlineSet m_deadlines;
    /// Held weakly by the saves in progress; one that ends after it was replaced or destroyed is
    /// dropped.
    std::shared_ptr<const bool> m_savesWanted;
};

} // namespace quorvane
