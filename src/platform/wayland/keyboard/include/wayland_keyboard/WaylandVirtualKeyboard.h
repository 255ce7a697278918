// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <memory>
#include <vector>
#include <wayland_server/WaylandConnection.h>

struct zwp_virtual_keyboard_v1;

namespace quorvane {

/// A keyboard of ours beside the user's, with a keymap of its own: what is held on the user's takes
/// no part in what this one types.
class WaylandVirtualKeyboard {
public:
    /// Takes the proxy. The keymap has the modifiers Shift and Control, as all have.
    WaylandVirtualKeyboard(
        std::shared_ptr<WaylandConnection> connection,
        zwp_virtual_keyboard_v1* proxy,
        const QByteArray& keymap);

    /// Lets go of all that is held.
    ~WaylandVirtualKeyboard();

    WaylandVirtualKeyboard(const WaylandVirtualKeyboard&) = delete;
    WaylandVirtualKeyboard& operator=(const WaylandVirtualKeyboard&) = delete;

    /// Presses the keys in their order and releases them in reverse; evdev codes.
    void tap(const std::vector<std::uint32_t>& keys);

private:
    void press(std::uint32_t key);
    void release();
    void send(std::uint32_t key, bool isDown);

    std::shared_ptr<WaylandConnection> m_connection;
    zwp_virtual_keyboard_v1* m_proxy;
    std::vector<std::uint32_t> m_held;
};

} // namespace quorvane
