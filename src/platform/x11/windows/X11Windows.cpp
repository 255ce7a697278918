// SPDX-License-Identifier: MIT
#include <x11_server/X11PropertyValue.h>
#include <x11_server/XcbReply.h>
#include <x11_windows/X11Windows.h>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

// Lengths of properties are counted in units of 32 bits.
constexpr std::uint32_t maxValues = 64;
constexpr std::uint32_t maxTextLength = 1024;

constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
constexpr int mostDialogs = 8; // one over the other

XcbReply<xcb_get_window_attributes_reply_t>
attributesOf(xcb_connection_t* connection, xcb_window_t window) {
    return XcbReply<xcb_get_window_attributes_reply_t>(xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, window), nullptr));
}

/// A property that names one window, asked for before the answer to another is awaited.
class WindowQuestion {
public:
    WindowQuestion(X11Connection& connection, xcb_window_t window, const char* property)
        : m_connection(connection.xcb()),
          m_cookie(xcb_get_property(
              m_connection, 0, window, connection.atom(property), XCB_ATOM_WINDOW, 0, 1)) {}

    /// XCB_WINDOW_NONE where the property is not there; to be called once.
    [[nodiscard]] xcb_window_t answer() const {
        const XcbReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(m_connection, m_cookie, nullptr));
        if (!reply || reply->format != 32 || reply->value_len == 0)
            return XCB_WINDOW_NONE;
        return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    }

private:
    xcb_connection_t* m_connection;
    xcb_get_property_cookie_t m_cookie;
};

constexpr auto managersWindow = "_NET_SUPPORTING_WM_CHECK";

} // namespace

bool X11Windows::hasWindowManager() const {
    return manager() != XCB_WINDOW_NONE;
}

xcb_window_t X11Windows::manager() const {
    const auto window =
        WindowQuestion(*m_connection, m_connection->root(), managersWindow).answer();
    return isManager(window) ? window : xcb_window_t{XCB_WINDOW_NONE};
}

/// Whether the window is one by which a window manager shows that it lives.
bool X11Windows::isManager(xcb_window_t window) const {
    return window != XCB_WINDOW_NONE &&
           WindowQuestion(*m_connection, window, managersWindow).answer() == window;
}

X11Windows::Active X11Windows::activeWindow() const {
    const WindowQuestion manager(*m_connection, m_connection->root(), managersWindow);
    const WindowQuestion front(*m_connection, m_connection->root(), "_NET_ACTIVE_WINDOW");
    const auto managerAnswer = manager.answer();
    const auto frontAnswer = front.answer();
    if (isManager(managerAnswer))
        return {frontAnswer, true};
    return {topLevelOf(inputFocus()), false};
}

xcb_window_t X11Windows::inputFocus() const {
    auto* connection = m_connection->xcb();
    const XcbReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (!reply || reply->focus == XCB_INPUT_FOCUS_POINTER_ROOT)
        return XCB_WINDOW_NONE;
    return reply->focus;
}

QStringList X11Windows::classOf(xcb_window_t window) const {
    const auto value =
        readPropertyValue(*m_connection, window, XCB_ATOM_WM_CLASS, {.maxLength = maxTextLength});
    if (!value || value->type != XCB_ATOM_STRING || value->unitBits != 8)
        return {};
    QStringList names;
    for (const auto& name : value->bytes.split('\0')) {
        if (!name.isEmpty())
            names.append(QString::fromLatin1(name));
    }
    return names;
}

bool X11Windows::exists(xcb_window_t window) const {
    return attributesOf(m_connection->xcb(), window) != nullptr;
}

bool X11Windows::isViewable(xcb_window_t window) const {
    const auto attributes = attributesOf(m_connection->xcb(), window);
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool X11Windows::isShown(xcb_window_t window) const {
    // Where a compositor keeps pictures of all windows, hidden ones may stay mapped.
    const auto states = values(window, "_NET_WM_STATE", XCB_ATOM_ATOM);
    const auto hidden = m_connection->atom("_NET_WM_STATE_HIDDEN");
    return isViewable(window) && std::ranges::find(states, hidden) == states.end() &&
           isOnDesktopInFront(window);
}

bool X11Windows::isOnDesktopInFront(xcb_window_t window) const {
    const auto desktop = values(window, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL);
    if (desktop.empty() || desktop.front() == everyDesktop)
        return true;
    const auto inFront = values(m_connection->root(), "_NET_CURRENT_DESKTOP", XCB_ATOM_CARDINAL);
    return inFront.empty() || inFront.front() == desktop.front();
}

bool X11Windows::isTransientFor(xcb_window_t window, xcb_window_t owner) const {
    // Bounded: nothing keeps two windows from naming each other.
    for (int depth = 0; depth < mostDialogs; ++depth) {
        const auto parent = values(window, "WM_TRANSIENT_FOR", XCB_ATOM_WINDOW);
        if (parent.empty() || parent.front() == XCB_WINDOW_NONE)
            return false;
        window = parent.front();
        if (window == owner)
            return true;
    }
    return false;
}

bool X11Windows::isDockOrDesktop(xcb_window_t window) const {
    const auto types = values(window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM);
    const auto dock = m_connection->atom("_NET_WM_WINDOW_TYPE_DOCK");
    const auto desktop = m_connection->atom("_NET_WM_WINDOW_TYPE_DESKTOP");
    return std::ranges::any_of(
        types, [=](xcb_atom_t type) { return type == dock || type == desktop; });
}

std::optional<QPoint> X11Windows::centreOf(xcb_window_t window) const {
    auto* xcb = m_connection->xcb();
    const XcbReply<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(xcb, xcb_get_geometry(xcb, window), nullptr));
    const XcbReply<xcb_translate_coordinates_reply_t> origin(xcb_translate_coordinates_reply(
        xcb, xcb_translate_coordinates(xcb, window, m_connection->root(), 0, 0), nullptr));
    if (!size || !origin)
        return std::nullopt;
    return QPoint(origin->dst_x + size->width / 2, origin->dst_y + size->height / 2);
}

std::vector<std::uint32_t>
X11Windows::values(xcb_window_t window, const char* property, xcb_atom_t type) const {
    const auto value = readPropertyValue(
        *m_connection, window, m_connection->atom(property), {.maxLength = maxValues});
    return value && value->type == type ? unitsOf(*value) : std::vector<std::uint32_t>();
}

void X11Windows::requestOfManager(
    xcb_window_t window, const char* message, const std::array<std::uint32_t, 5>& data) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = m_connection->atom(message);
    std::ranges::copy(data, std::begin(event.data.data32));
    xcb_send_event(
        m_connection->xcb(),
        0,
        m_connection->root(),
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
        reinterpret_cast<const char*>(&event));
    m_connection->flush();
}

void X11Windows::requestFocus(xcb_window_t window, xcb_timestamp_t time) const {
    if (hasWindowManager()) {
        return requestOfManager(
            window, "_NET_ACTIVE_WINDOW", {sourcePager, time, XCB_WINDOW_NONE, 0, 0});
    }
    constexpr std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(m_connection->xcb(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    // The current time: one from before the last change of the focus would be ignored.
    xcb_set_input_focus(m_connection->xcb(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    m_connection->flush();
}

xcb_window_t X11Windows::topLevelOf(xcb_window_t window) const {
    auto* connection = m_connection->xcb();
    while (window != XCB_WINDOW_NONE) {
        const XcbReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
        if (!tree)
            return XCB_WINDOW_NONE;
        if (tree->parent == m_connection->root())
            return window;
        window = tree->parent;
    }
    return XCB_WINDOW_NONE;
}

} // namespace quorvane
