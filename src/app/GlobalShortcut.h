// SPDX-License-Identifier: MIT
#pragma once

#include "ShortcutPress.h"

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

    struct Callbacks {
        /// Once for each press, however long the key is held down.
        std::function<void()> onPressed;
        /// activity() says something else than before.
        std::function<void()> onActivityChanged;
        /// The user has chosen another one in the desktop's settings; it is armed already.
        std::function<void(HotKeyCombo)> onComboChanged = [](HotKeyCombo) {
        };
    };

    GlobalShortcut(Dependencies dependencies, Callbacks callbacks);
    ~GlobalShortcut();

    GlobalShortcut(const GlobalShortcut&) = delete;
    GlobalShortcut& operator=(const GlobalShortcut&) = delete;

    /// Makes the monitor and arms it.
    void startHotKeyMonitor(HotKeyCombo combo);

    /// Arms another shortcut in place of this one. Does nothing before the start.
    void change(HotKeyCombo combo);

    /// Asks again for a shortcut that another program held. Nobody tells when one becomes free, so
    /// this is called whenever something happens after which it may have. It costs the others
    /// nothing; does nothing where the shortcut is ours.
    void retry();

    /// Whether presses of the shortcut reach the program.
    [[nodiscard]] ShortcutRecorder::Activity activity() const;

    /// What people call the program that holds it elsewhere; empty where nobody tells.
    [[nodiscard]] QString holder() const { return m_monitor ? m_monitor->holder() : QString(); }

    /// Null before the start.
    [[nodiscard]] const HotKeyMonitor* monitor() const { return m_monitor.get(); }

private:
    void handleTrigger();

    Dependencies m_dependencies;
    Callbacks m_callbacks;
    ShortcutPress m_press;
    std::shared_ptr<HotKeyMonitor> m_monitor;
};

} // namespace quorvane
