// SPDX-License-Identifier: MIT
#include <x11_server/X11PropertyValue.h>

#include <cstring>

namespace quorvane {

namespace {

constexpr qsizetype bytesPerUnit32 = sizeof(std::uint32_t);

} // namespace

X11PropertyValue propertyValue(xcb_atom_t type, const std::vector<std::uint32_t>& units) {
    const auto size = static_cast<qsizetype>(units.size()) * bytesPerUnit32;
    return {type, 32, QByteArray(reinterpret_cast<const char*>(units.data()), size)};
}

std::vector<std::uint32_t> unitsOf(const X11PropertyValue& value) {
    if (value.unitBits != 32)
        return {};
    std::vector<std::uint32_t> units(static_cast<std::size_t>(value.bytes.size() / bytesPerUnit32));
    std::memcpy(units.data(), value.bytes.constData(), units.size() * sizeof(std::uint32_t));
    return units;
}

std::optional<X11PropertyValue> readPropertyValue(
    const X11Connection& connection, xcb_window_t window, xcb_atom_t property, X11Reading reading) {
    const auto cookie = xcb_get_property(
        connection.xcb(),
        reading.deletes ? 1 : 0,
        window,
        property,
        XCB_GET_PROPERTY_TYPE_ANY,
        0,
        reading.maxLength);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection.xcb(), cookie, nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE)
        return std::nullopt;
    return X11PropertyValue{
        reply->type,
        reply->format,
        QByteArray(
            static_cast<const char*>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get()))};
}

void writePropertyValue(
    const X11Connection& connection,
    xcb_window_t window,
    xcb_atom_t property,
    const X11PropertyValue& value) {
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
}

} // namespace quorvane
