// SPDX-License-Identifier: MIT
#include <chrono>
#include <linux/input-event-codes.h>
#include <unistd.h>
#include <utility>
#include <virtual-keyboard-unstable-v1-client.h>
#include <wayland-client-protocol.h>
#include <wayland_keyboard/KeymapText.h>
#include <wayland_keyboard/WaylandVirtualKeyboard.h>

namespace quorvane {

namespace {

// The real modifiers of XKB come first in every keymap, in this order.
constexpr std::uint32_t shiftBit = 1U << 0U;
constexpr std::uint32_t controlBit = 1U << 2U;

std::uint32_t modifierBit(std::uint32_t key) {
    switch (key) {
    case KEY_LEFTSHIFT:
        return shiftBit;
    case KEY_LEFTCTRL:
        return controlBit;
    default:
        return 0;
    }
}

std::uint32_t milliseconds() {
    using namespace std::chrono;
    return static_cast<std::uint32_t>(
        duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count());
}

} // namespace

WaylandVirtualKeyboard::WaylandVirtualKeyboard(
    std::shared_ptr<WaylandConnection> connection,
    zwp_virtual_keyboard_v1* proxy,
    const QByteArray& keymap)
    : m_connection(std::move(connection)),
      m_proxy(proxy) {
    const int file = keymapFile(keymap);
    if (file < 0)
        return;
    zwp_virtual_keyboard_v1_keymap(
        m_proxy,
        WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1,
        file,
        static_cast<std::uint32_t>(keymap.size() + 1));
    // The connection has made a copy.
    close(file);
}

WaylandVirtualKeyboard::~WaylandVirtualKeyboard() {
    while (!m_held.empty())
        release();
    zwp_virtual_keyboard_v1_destroy(m_proxy);
    m_connection->flush();
}

void WaylandVirtualKeyboard::tap(const std::vector<std::uint32_t>& keys) {
    for (const auto key : keys)
        press(key);
    while (!m_held.empty())
        release();
    m_connection->flush();
}

void WaylandVirtualKeyboard::press(std::uint32_t key) {
    m_held.push_back(key);
    send(key, true);
}

void WaylandVirtualKeyboard::release() {
    const auto key = m_held.back();
    m_held.pop_back();
    send(key, false);
}

void WaylandVirtualKeyboard::send(std::uint32_t key, bool isDown) {
    zwp_virtual_keyboard_v1_key(
        m_proxy,
        milliseconds(),
        key,
        isDown ? WL_KEYBOARD_KEY_STATE_PRESSED : WL_KEYBOARD_KEY_STATE_RELEASED);
    if (modifierBit(key) == 0)
        return;
    // Compositors take the modifiers from here, and not from the keys.
    std::uint32_t modifiers = 0;
    for (const auto held : m_held)
        modifiers |= modifierBit(held);
    zwp_virtual_keyboard_v1_modifiers(m_proxy, modifiers, 0, 0, 0);
}

} // namespace quorvane
