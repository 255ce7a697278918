// SPDX-License-Identifier: MIT
#pragma once

#include "support/ForeignWindow.h"
#include "support/X11Test.h"

#include <platform/KeyCodes.h>
#include <x11_keyboard/X11EventTapService.h>

#include <linux/input-event-codes.h>
#include <memory>
#include <utility>
#include <vector>

namespace quorvane {

/// A tap on the default shortcut, while another program's window has the keys.
class TapTest : public X11Test {
protected:
    static constexpr KeyChord shortcut{
        keycode::d, modifier::control | modifier::shift | modifier::command};
    static constexpr std::uint16_t shortcutMask =
        XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_4;
    static constexpr xcb_keycode_t keycodeOfD = KEY_D + 8;

    static inline const std::vector<std::uint16_t> shortcutKeys{
        KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_LEFTMETA, KEY_D};

    void SetUp() override { m_target.takeFocus(); }

    [[nodiscard]] std::unique_ptr<EventTap> makeTap(std::optional<KeyChord> chord = shortcut) {
        auto result = m_service.createTap(
            {[this](const KeyPress& press) {
                 m_presses.push_back(press);
                 return m_verdict;
             },
             [this] { ++m_releases; },
             [this] {
                 ++m_deliveryChanges;
             }});
        auto tap = std::move(std::get<std::unique_ptr<EventTap>>(result));
        tap->watch(chord);
        tap->enable();
        return tap;
    }

    /// Types one more key, and waits until it has come out at the window behind all before it, and
    /// the tap has seen all that it was sent meanwhile. A key that is typed while a repeat of the
    /// held shortcut is not answered yet comes to us, and is typed once more.
    [[nodiscard]] bool keysAreThrough() {
        const auto before = m_target.keys().size();
        auto presses = m_presses.size();
        typeAfterAllRequests(KEY_F8);
        const bool atTarget = waitUntil([this, before, &presses] {
            if (std::exchange(presses, m_presses.size()) < m_presses.size())
                typeAfterAllRequests(KEY_F8);
            const auto& keys = m_target.keys();
            return keys.size() > before && keys.back().keycode == KEY_F8 + 8 &&
                   keys.back().kind == ReceivedKey::Kind::Release;
        });
        return atTarget && eventsAreDelivered();
    }

    /// The server reads the connections in any order: without a round trip it may get the key
    /// before it learns that the tap has let go of the keyboard.
    void typeAfterAllRequests(std::uint16_t key) {
        m_connection->waitForServer();
        m_keyboard.type({key});
    }

    /// Sends an event to the tap's own connection, which arrives behind all others.
    [[nodiscard]] bool eventsAreDelivered() {
        auto* xcb = m_connection->xcb();
        const auto window = xcb_generate_id(xcb);
        xcb_create_window(
            xcb,
            XCB_COPY_FROM_PARENT,
            window,
            m_connection->root(),
            0,
            0,
            1,
            1,
            0,
            XCB_WINDOW_CLASS_INPUT_ONLY,
            XCB_COPY_FROM_PARENT,
            0,
            nullptr);
        xcb_client_message_event_t last{};
        last.response_type = XCB_CLIENT_MESSAGE;
        last.format = 32;
        last.window = window;
        // Without a mask it goes to the client that made the window.
        xcb_send_event(xcb, 0, window, 0, reinterpret_cast<const char*>(&last));
        bool isThere = false;
        const auto subscription = m_connection->subscribe([&](const xcb_generic_event_t& event) {
            isThere = isThere || (event.response_type & 0x7f) == XCB_CLIENT_MESSAGE;
        });
        m_connection->flush();
        return waitUntil([&isThere] { return isThere; });
    }

    [[nodiscard]] bool targetGot(ReceivedKey::Kind kind) {
        return m_target.hasReceived(kind, keycodeOfD);
    }

    std::shared_ptr<X11GrabbedKeys> m_grabbedKeys = std::make_shared<X11GrabbedKeys>(m_connection);
    X11EventTapService m_service{m_connection, m_queue, m_grabbedKeys};
    ForeignWindow m_target;
    TapVerdict m_verdict = TapVerdict::Swallow;
    std::vector<KeyPress> m_presses;
    int m_releases = 0;
    int m_deliveryChanges = 0;
};

} // namespace quorvane
