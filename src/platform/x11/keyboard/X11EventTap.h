// SPDX-License-Identifier: MIT
#pragma once

#include "X11KeyGrab.h"
#include "X11KeyReleaseWatch.h"
#include "X11ModifierMap.h"

#include <loop/CoalescedRefresh.h>
#include <platform/EventTap.h>
#include <x11_keyboard/X11GrabbedKeys.h>
#include <x11_server/X11Connection.h>
#include <x11_windows/X11Windows.h>

#include <QAbstractNativeEventFilter>

#include <memory>
#include <optional>

namespace quorvane {

/// Sees one press: the watched one, which it grabs by its position and exact modifiers, whatever
/// locks are on. The grab outlives a change of the keyboard layout.
class X11EventTap final : public EventTap, private QAbstractNativeEventFilter {
public:
    X11EventTap(
        std::shared_ptr<X11Connection> connection,
        std::shared_ptr<X11GrabbedKeys> grabbedKeys,
        MainQueue& mainQueue,
        TapHandlers handlers);
    ~X11EventTap() override;

    X11EventTap(const X11EventTap&) = delete;
    X11EventTap& operator=(const X11EventTap&) = delete;

    void watch(std::optional<KeyChord> chord) override;

    void enable() override;
    void disable() override;

    [[nodiscard]] TapDelivery delivery() const override { return m_delivery; }

    /// The server tells only that there is one.
    [[nodiscard]] QString holder() const override { return {}; }

    [[nodiscard]] bool tellsRelease() const override { return m_releaseWatch.isAvailable(); }

    [[nodiscard]] bool isKeyDown() override;

private:
    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;
    void handleEvent(const xcb_generic_event_t& event);
    void handlePress(const xcb_key_press_event_t& press);
    void tellIfUp(xcb_keycode_t key);
    void handleRelease(const xcb_key_release_event_t& release);
    [[nodiscard]] TapVerdict decide(const xcb_key_press_event_t& press);
    [[nodiscard]] bool isWatched(const xcb_key_press_event_t& press) const;
    [[nodiscard]] std::optional<X11GrabbedKeys::Combination> wantedCombination() const;
    void updateGrab();
    [[nodiscard]] TapDelivery updatedDelivery();
    void keyboardMapChanged();

    std::shared_ptr<X11Connection> m_connection;
    std::shared_ptr<X11GrabbedKeys> m_grabbedKeys;
    TapHandlers m_handlers;
    X11Windows m_windows;
    std::optional<std::uint8_t> m_mapEvent; ///< XKB's, none on a server without it
    X11ModifierMap m_modifiers;
    X11KeyReleaseWatch m_releaseWatch;
    std::optional<KeyChord> m_watched;
    bool m_enabled = false;
    std::unique_ptr<X11KeyGrab> m_grab;
    TapDelivery m_delivery = TapDelivery::Off;
    CoalescedRefresh m_mapRefresh;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
