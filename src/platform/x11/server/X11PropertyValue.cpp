// SPDX-License-Identifier: MIT
#include <x11_server/X11PropertyValue.h>

#include <cstring>
#include <utility>

namespace quorvane {

namespace {

constexpr qsizetype bytesPerUnit32 = sizeof(std::uint32_t);

} // namespace

X11PropertyValue propertyValue(xcb_atom_t type, const std::vector<std::uint32_t>& units) {
    const auto size = static_cast<qsizetype>(units.size()) * bytesPerUnit32;
    return {type, 32, QByteArray(reinterpret_cast<const char*>(units.data()), size)};
}

std::vector<std::uint32_t> unitsOf(const X11PropertyValue& value) {
    if (value.unitBits != 32 || value.bytes.size() < bytesPerUnit32)
        return {};
    std::vector<std::uint32_t> units(static_cast<std::size_t>(value.bytes.size() / bytesPerUnit32));
    std::memcpy(units.data(), value.bytes.constData(), units.size() * sizeof(std::uint32_t));
    return units;
}

std::optional<X11PropertyValue> readPropertyValue(
    const X11Connection& connection, xcb_window_t window, xcb_atom_t property, X11Reading reading) {
    auto piece = readPropertyPiece(connection, window, property, reading);
    return piece ? std::optional(std::move(piece->value)) : std::nullopt;
}

std::optional<X11PropertyPiece> readPropertyPiece(
    const X11Connection& connection, xcb_window_t window, xcb_atom_t property, X11Reading reading) {
    const auto cookie = xcb_get_property(
        connection.xcb(),
        reading.deletes ? 1 : 0,
        window,
        property,
        XCB_GET_PROPERTY_TYPE_ANY,
        reading.offset,
        reading.maxLength);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection.xcb(), cookie, nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE)
        return std::nullopt;
    auto* const data = static_cast<char*>(xcb_get_property_value(reply.get()));
    const int size = xcb_get_property_value_length(reply.get());
    X11PropertyPiece piece{
        {reply->type, reply->format, QByteArray(data, size)}, reply->bytes_after == 0};
    forget(data, static_cast<std::size_t>(size));
    return piece;
}

qsizetype longestPropertyValue(const X11Connection& connection) {
    const auto request =
        qsizetype{xcb_get_maximum_request_length(connection.xcb())} * bytesPerUnit32;
    // A request that needs an extended length field is longer by that.
    return request - qsizetype{sizeof(xcb_change_property_request_t)} - bytesPerUnit32;
}

bool writePropertyValue(
    const X11Connection& connection,
    xcb_window_t window,
    xcb_atom_t property,
    const X11PropertyValue& value) {
    if (value.bytes.size() > longestPropertyValue(connection))
        return false;
    const auto units = value.bytes.size() * 8 / value.unitBits;
    xcb_change_property(
        connection.xcb(),
        XCB_PROP_MODE_REPLACE,
        window,
        property,
        value.type,
        static_cast<std::uint8_t>(value.unitBits),
        static_cast<std::uint32_t>(units),
        value.bytes.constData());
    return true;
}

} // namespace quorvane
