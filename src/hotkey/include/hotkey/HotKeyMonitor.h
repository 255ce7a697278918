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

    /// Run when the shortcut's key has gone up, in order with the triggers; never where
    /// tellsRelease() is false.
    void setOnReleased(std::function<void()> onReleased);

    /// Run in a later event-loop iteration after delivery() has become another.
    void setOnDeliveryChanged(std::function<void()> onDeliveryChanged);

    /// Run in a later event-loop iteration after the user has given the shortcut other keys in the
    /// desktop's settings: combo() says which, and its presses are waited for already.
    void setOnComboChanged(std::function<void()> onComboChanged);

    /// Arms the monitor; without the accessibility right, or where no tap can be had, it stays idle
    /// and says so to nobody but lastFailure() and the log. Asks the user for nothing.
    void start();

    /// Disarms it; harmless when idle.
    void stop();

    /// Asks again for a shortcut that another program held, or for the tap that start() did not
    /// get; does nothing when the shortcut is ours, and when stopped.
    void retry();

    /// Whether presses of the shortcut reach us, and if not, why; Off while idle.
    [[nodiscard]] TapDelivery delivery() const;

    /// What people call the program that holds the shortcut elsewhere; empty where nobody tells.
    [[nodiscard]] QString holder() const { return m_eventTap ? m_eventTap->holder() : QString(); }

    [[nodiscard]] bool isArmed() const { return delivery() == TapDelivery::Delivering; }

    /// Whether the end of each press is told; false while idle.
    [[nodiscard]] bool tellsRelease() const { return m_eventTap && m_eventTap->tellsRelease(); }

    /// Why the last start() left the monitor idle; none after one that did not.
    [[nodiscard]] const std::optional<TapFailure>& lastFailure() const { return m_lastFailure; }

    /// Whether the shortcut's key is down now, as far as the desktop tells; false while idle.
    [[nodiscard]] bool isKeyDown() const { return m_eventTap && m_eventTap->isKeyDown(); }

private:
    HotKeyMonitor(HotKeyCombo combo, Dependencies dependencies);

    using Callback = std::function<void()>;

    [[nodiscard]] TapVerdict handle(const KeyPress& press);
    void schedule(Callback HotKeyMonitor::*callback);
    void announce(Callback HotKeyMonitor::*callback);
    void adopt(const KeyChord& chord);
    void startAgain();
    void watchCombo();
    void fail(TapFailure failure);

    HotKeyCombo m_combo;
    Dependencies m_dependencies;
    Callback m_onTriggered;
    Callback m_onReleased;
    Callback m_onDeliveryChanged;
    Callback m_onComboChanged;
    std::unique_ptr<EventTap> m_eventTap;
    std::optional<TapFailure> m_lastFailure;
    bool m_lacksTap = false; ///< since the last start()
};

} // namespace quorvane
