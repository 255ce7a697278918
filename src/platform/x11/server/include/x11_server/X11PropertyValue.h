// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <QByteArray>

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace quorvane {

/// What a property of a window holds, bit for bit.
struct X11PropertyValue {
    xcb_atom_t type = XCB_ATOM_NONE;
    int unitBits = 8; ///< 8, 16 or 32
    QByteArray bytes; ///< in the byte order of the machine; units of 32 bits take 4 bytes each
};

/// A value of 32-bit units, such as a list of atoms.
[[nodiscard]] X11PropertyValue
propertyValue(xcb_atom_t type, const std::vector<std::uint32_t>& units);

/// The units of a value; none if they are not of 32 bits.
[[nodiscard]] std::vector<std::uint32_t> unitsOf(const X11PropertyValue& value);

/// How a property is read.
struct X11Reading {
    bool deletes = false; ///< only a value that is read to its end is deleted
    /// At most so many units of 32 bits; the server multiplies them by four.
    std::uint32_t maxLength = std::numeric_limits<std::int32_t>::max() / 4;
};

/// None where there is no such property, or no such window.
[[nodiscard]] std::optional<X11PropertyValue> readPropertyValue(
    const X11Connection& connection,
    xcb_window_t window,
    xcb_atom_t property,
    X11Reading reading = {});

/// In one request: the value must not be longer than the server takes in one. Does nothing
/// if the window no longer exists.
void writePropertyValue(
    const X11Connection& connection,
    xcb_window_t window,
    xcb_atom_t property,
    const X11PropertyValue& value);

} // namespace quorvane
