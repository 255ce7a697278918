// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ForgottenBytes.h>
#include <x11_server/X11Connection.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace quorvane {

/// What a property of a window holds, bit for bit.
struct X11PropertyValue {
    xcb_atom_t type = XCB_ATOM_NONE;
    int unitBits = 8;     ///< 8, 16 or 32
    ForgottenBytes bytes; ///< in the byte order of the machine; units of 32 bits take 4 bytes each
};

/// A value of 32-bit units, such as a list of atoms.
[[nodiscard]] X11PropertyValue
propertyValue(xcb_atom_t type, const std::vector<std::uint32_t>& units);

/// The units of a value; none if they are not of 32 bits.
[[nodiscard]] std::vector<std::uint32_t> unitsOf(const X11PropertyValue& value);

/// How a property is read.
struct X11Reading {
    bool deletes = false;     ///< only a value that is read to its end is deleted
    std::uint32_t offset = 0; ///< in units of 32 bits
    /// At most so many units of 32 bits; the server multiplies them by four.
    std::uint32_t maxLength = std::numeric_limits<std::int32_t>::max() / 4;
};

/// None where there is no such property, or no such window.
[[nodiscard]] std::optional<X11PropertyValue> readPropertyValue(
    const X11Connection& connection,
    xcb_window_t window,
    xcb_atom_t property,
    X11Reading reading = {});

/// A part of what a property holds.
struct X11PropertyPiece {
    X11PropertyValue value;
    bool isLast = true;
};

/// The same, for properties that may be longer than one wants to read at once.
[[nodiscard]] std::optional<X11PropertyPiece> readPropertyPiece(
    const X11Connection& connection, xcb_window_t window, xcb_atom_t property, X11Reading reading);

/// The longest value that the server takes in one request, in bytes; whole units of any size.
[[nodiscard]] qsizetype longestPropertyValue(const X11Connection& connection);

/// In one request. False, and nothing done, where the value is longer than the server takes in one:
/// such a request would end the connection. Nothing happens if the window no longer exists.
bool writePropertyValue(
    const X11Connection& connection,
    xcb_window_t window,
    xcb_atom_t property,
    const X11PropertyValue& value);

} // namespace quorvane
