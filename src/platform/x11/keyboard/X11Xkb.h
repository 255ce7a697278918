// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>

/// The XKB extension, as far as libxkbcommon does not cover it.
namespace quorvane::x11xkb {

/// Stands for the keyboard that core events come from.
inline constexpr std::uint16_t coreKeyboard = 0x100;

/// Modifiers that act without a key being down, as event states have them.
struct StuckModifiers {
    std::uint8_t locked = 0;
    std::uint8_t latched = 0; ///< for the next key only

    friend bool operator==(const StuckModifiers&, const StuckModifiers&) = default;
};

/// The code of the extension's events, none if the server lacks it. From then on the connection is
/// sent no MappingNotify: changed maps are announced by what selectMapChanges() asks for.
[[nodiscard]] std::optional<std::uint8_t> start(xcb_connection_t* connection);

/// To be told when the keyboard's map changes, or the keyboard itself.
void selectMapChanges(xcb_connection_t* connection, std::uint16_t device);

/// To be sent no release in front of each repeat of a key that is held down.
void omitReleasesOfRepeats(xcb_connection_t* connection);

/// To be told when another of the map's groups (layouts) comes into use.
void selectGroupChanges(xcb_connection_t* connection, std::uint16_t device);

/// Whether an event of the extension only tells that another group, or other modifiers, came into
/// use: the map is as it was.
[[nodiscard]] bool isStateChange(const xcb_generic_event_t& event);

/// The group in use.
[[nodiscard]] std::uint8_t group(xcb_connection_t* connection, std::uint16_t device);

/// Of the core keyboard.
[[nodiscard]] StuckModifiers stuckModifiers(xcb_connection_t* connection);

/// Locks and latches exactly these on the core keyboard, as far as `affected` goes.
void setStuckModifiers(
    xcb_connection_t* connection, std::uint8_t affected, const StuckModifiers& modifiers);

} // namespace quorvane::x11xkb
