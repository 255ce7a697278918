// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyMonitor.h>
#include <recorder/ShortcutRecorder.h>

#include <functional>
#include <memory>

namespace quorvane {

/// The shortcut that shows the interface, whichever application has the focus.
class GlobalShortcut final {
public:
    /// All must outlive the shortcut.
    struct Dependencies {
        const AccessibilityRight& accessibilityRight;
        EventTapService& eventTaps;
        MainQueue& mainQueue;
    };

    GlobalShortcut(Dependencies dependencies, std::function<void()> onTriggered);

    /// Makes the monitor and arms it.
    void startHotKeyMonitor(HotKeyCombo combo);

    /// Arms another shortcut in place of this one. Does nothing before the start.
    void change(HotKeyCombo combo);

    /// Whether presses of the shortcut reach the program.
    [[nodiscard]] ShortcutRecorder::Activity activity() const;

    /// Null before the start.
    [[nodiscard]] const HotKeyMonitor* monitor() const { return m_monitor.get(); }

private:
    Dependencies m_dependencies;
    std::function<void()> m_onTriggered;
    std::shared_ptr<HotKeyMonitor> m_monitor;
};

} // namespace quorvane
