// SPDX-License-Identifier: MIT
#pragma once

#include "GlobalShortcut.h"

#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <model/DateTimeModel.h>
#include <platform/DesktopShortcut.h>

#include <functional>

namespace quorvane {

/// The line that tells the user that no shortcut leads to the panel, on desktops where only the
/// user can change that. It is gone once one does, or for good when the user says so.
class ShortcutHint final {
public:
    /// What a desktop takes to tell what its list of shortcuts holds. Said before, the line would
    /// come and go.
    static constexpr Seconds patience{1};

    /// All must outlive the hint.
    struct Dependencies {
        DateTimeModel& model;
        const GlobalShortcut& shortcut;
        const DesktopShortcut& list;
        MainQueue& queue;
    };

    /// Shows the text; an empty one is none.
    using Show = std::function<void(const QString& text)>;

    ShortcutHint(Dependencies dependencies, Show show);

    /// The program has started.
    void begin();

    /// What keeps the shortcut from working, or what the desktop's list holds, may have changed.
    void refresh();

    /// The user does not want to be told again.
    void dismiss();

    /// The desktop has called the interface by its bus name: a key is bound to that, where nobody
    /// else can tell.
    void noteCall();

private:
    [[nodiscard]] bool isNeeded() const;

    Dependencies m_dependencies;
    Show m_show;
    Deadline m_beginning;
    bool m_hasBegun = false;
};

} // namespace quorvane
