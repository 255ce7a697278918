// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyCombo.h>
#include <loop/MainQueue.h>
#include <platform/AccessibilityRight.h>
#include <platform/EventTap.h>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// Waits for one shortcut, wherever it is pressed, keeps the press from other programs and runs
/// `onTriggered` in the next event-loop iteration. Held by a shared pointer: a pending trigger
/// keeps it alive. Its end needs no stop(): destroying the tap gives the shortcut up.
class HotKeyMonitor final : public std::enable_shared_from_this<HotKeyMonitor> {
public:
    /// What the monitor works with; all must outlive it.
    struct Dependencies {
        const AccessibilityRight& accessibilityRight;
        EventTapService& eventTaps;
        MainQueue& mainQueue;
    };

    [[nodiscard]] static std::shared_ptr<HotKeyMonitor>
    create(HotKeyCombo combo, Dependencies dependencies);

    [[nodiscard]] HotKeyCombo combo() const { return m_combo; }

    /// Takes effect from the next press on, also while armed.
    void setCombo(HotKeyCombo combo);

    /// Run on each press of the shortcut, auto-repeats included; read when it runs, so that a later
    /// one also serves presses that are already queued.
    void setOnTriggered(std::function<void()> onTriggered);

    /// Arms the monitor; without the accessibility right, or where no tap can be had, it stays idle
    /// and says so to nobody but lastFailure() and the log. Asks the user for nothing.
    void start();

    /// Disarms it; harmless when idle.
    void stop();

    /// Whether presses of the shortcut reach us: not while idle, nor while another program holds
    /// it.
    [[nodiscard]] bool isArmed() const;

    /// Why the last start() left the monitor idle; none after one that did not.
    [[nodiscard]] const std::optional<TapFailure>& lastFailure() const { return m_lastFailure; }

private:
    HotKeyMonitor(HotKeyCombo combo, Dependencies dependencies);

    [[nodiscard]] TapVerdict handle(const KeyPress& press);
    void scheduleTrigger();
    void watchCombo();
    void fail(TapFailure failure);

    HotKeyCombo m_combo;
    Dependencies m_dependencies;
    std::function<void()> m_onTriggered;
    std::unique_ptr<EventTap> m_eventTap;
    std::optional<TapFailure> m_lastFailure;
};

} // namespace quorvane
