// SPDX-License-Identifier: MIT
#pragma once

#include "X11KeyGrab.h"
#include "X11ModifierMap.h"

#include <loop/CoalescedRefresh.h>
#include <platform/EventTap.h>
#include <x11_keyboard/X11PostedKeys.h>
#include <x11_server/X11Connection.h>

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
        MainQueue& mainQueue,
        std::shared_ptr<const X11PostedKeys> postedKeys,
        KeyPressHandler handler);
    ~X11EventTap() override;

    X11EventTap(const X11EventTap&) = delete;
    X11EventTap& operator=(const X11EventTap&) = delete;

    void watch(std::optional<KeyChord> chord) override;

    /// A repeated call asks again for a shortcut that another program held.
    void enable() override;
    void disable() override;

    [[nodiscard]] bool isDelivering() const override { return m_grab != nullptr; }

private:
    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;
    void handleEvent(const xcb_generic_event_t& event);
    void answerGrab(const xcb_key_press_event_t& press);
    [[nodiscard]] TapVerdict decide(const xcb_key_press_event_t& press);
    [[nodiscard]] bool isWatched(const xcb_key_press_event_t& press) const;
    [[nodiscard]] std::optional<X11KeyGrab::Combination> wantedCombination() const;
    void updateGrab();
    void keyboardMapChanged();

    std::shared_ptr<X11Connection> m_connection;
    std::shared_ptr<const X11PostedKeys> m_postedKeys;
    KeyPressHandler m_handler;
    X11ModifierMap m_modifiers;
    std::optional<KeyChord> m_watched;
    bool m_enabled = false;
    std::unique_ptr<X11KeyGrab> m_grab;
    xcb_timestamp_t m_lastDecision = XCB_CURRENT_TIME;
    CoalescedRefresh m_mapRefresh;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
