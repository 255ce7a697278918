// SPDX-License-Identifier: MIT
#pragma once

#include "GlobalShortcut.h"

#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <model/DateTimeModel.h>
#include <panel/PanelHint.h>
#include <platform/DesktopShortcut.h>
#include <platform/KeyboardLayout.h>

#include <functional>

namespace quorvane {

/// The line that tells a new user which shortcut leads to the panel, or what keeps one from doing
/// so. It is gone for good once the user has come by the shortcut, or does not want it.
class ShortcutHint final {
public:
    /// What a desktop takes to tell whether it has a shortcut for us. That there is none is not
    /// said before, or else the line would change.
    static constexpr Seconds patience{1};

    /// All must outlive the hint.
    struct Dependencies {
        DateTimeModel& model;
        const GlobalShortcut& shortcut;
        const DesktopShortcut& list;
        const KeyboardLayout& layout;
        MainQueue& queue;
    };

    using Show = std::function<void(const PanelHint& hint)>;

    ShortcutHint(Dependencies dependencies, Show show);

    /// The program has started.
    void begin();

    /// The shortcut, what keeps it from working, what is printed on its keys, or what the desktop's
    /// list holds, may have changed.
    void refresh();

    /// The user does not want to be told again.
    void dismiss();

    /// The desktop has called the interface by its bus name: a key is bound to that, where nobody
    /// else can tell.
    void noteCall();

    /// The user has pressed the shortcut.
    void notePress();

private:
    [[nodiscard]] PanelHint hint() const;
    [[nodiscard]] PanelHint hintWithoutShortcut() const;
    [[nodiscard]] static PanelHint hintOf(const QString& shortcut);
    [[nodiscard]] bool isUnavailable() const;

    Dependencies m_dependencies;
    Show m_show;
    Deadline m_beginning;
    bool m_hasBegun = false;
};

} // namespace quorvane
