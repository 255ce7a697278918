// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ModifierFlags.h>
#include <x11_server/X11Connection.h>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace quorvane {

/// Which bit of a key event's state stands for which modifier. Only Shift, Lock and Control have
/// fixed bits; where Alt, Super and Num Lock are is up to the keyboard map.
class X11ModifierMap {
public:
    /// The keys on each of the eight modifiers, Shift first.
    using Rows = std::array<std::vector<xcb_keycode_t>, 8>;
    /// All that a key can produce, in every group and level.
    using KeysymsOf = std::function<std::vector<xcb_keysym_t>(xcb_keycode_t)>;

    X11ModifierMap() = default;
    X11ModifierMap(const Rows& rows, const KeysymsOf& keysymsOf);

    /// The map in force. Asks the server twice.
    [[nodiscard]] static X11ModifierMap read(const X11Connection& connection);

    /// Live flags of a key event, Caps Lock included. AltGr is none of them.
    [[nodiscard]] ModifierFlags flagsOf(std::uint16_t state) const;

    /// The event state for the modifiers of a shortcut in `flags`; none if the keyboard lacks one.
    [[nodiscard]] std::optional<std::uint16_t> maskOf(ModifierFlags flags) const;

    /// The modifiers of the lock keys: Caps Lock, Num Lock and Scroll Lock.
    [[nodiscard]] std::uint16_t lockMask() const {
        return static_cast<std::uint16_t>(XCB_MOD_MASK_LOCK | m_numLock | m_scrollLock);
    }

    /// The mask combined with every subset of the lock modifiers: locks do not change a shortcut.
    [[nodiscard]] std::vector<std::uint16_t> withLocks(std::uint16_t mask) const;

private:
    std::uint16_t m_option = 0;
    std::uint16_t m_command = 0;
    std::uint16_t m_numLock = 0;
    std::uint16_t m_scrollLock = 0;
};

} // namespace quorvane
