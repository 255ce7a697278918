// SPDX-License-Identifier: MIT
#include "support/ForeignWindow.h"

#include "support/WaitUntil.h"

#include <algorithm>

namespace quorvane {

namespace {

// Bits 13 and 14 of a state that the XKB extension reports are the group in use.
constexpr std::uint16_t stateWithoutGroup = 0x1fff;

// ICCCM 4.1.4
constexpr std::uint32_t iconicState = 3;

} // namespace

ForeignWindow::ForeignWindow(
    const QByteArray& instance, const QByteArray& className, const QByteArray& type)
    : m_connection(xcb_connect(nullptr, nullptr)),
      m_screen(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data),
      m_window(xcb_generate_id(m_connection)) {
    constexpr std::uint32_t events =
        XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_FOCUS_CHANGE;
    xcb_create_window(
        m_connection,
        XCB_COPY_FROM_PARENT,
        m_window,
        m_screen->root,
        10,
        10,
        200,
        100,
        0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT,
        XCB_CW_EVENT_MASK,
        &events);
    setProperty("WM_CLASS", XCB_ATOM_STRING, instance + '\0' + className + '\0');
    if (!type.isEmpty()) {
        const auto typeAtom = atom(type);
        setProperty(
            "_NET_WM_WINDOW_TYPE",
            XCB_ATOM_ATOM,
            QByteArray(reinterpret_cast<const char*>(&typeAtom), sizeof(typeAtom)));
    }
    xcb_flush(m_connection);
}

ForeignWindow::~ForeignWindow() {
    xcb_disconnect(m_connection);
}

void ForeignWindow::show() {
    xcb_map_window(m_connection, m_window);
    xcb_flush(m_connection);
}

void ForeignWindow::iconify() {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = m_window;
    event.type = atom("WM_CHANGE_STATE");
    event.data.data32[0] = iconicState;
    xcb_send_event(
        m_connection,
        0,
        m_screen->root,
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
        reinterpret_cast<const char*>(&event));
    xcb_flush(m_connection);
}

void ForeignWindow::setOwner(xcb_window_t owner) {
    setProperty(
        "WM_TRANSIENT_FOR",
        XCB_ATOM_WINDOW,
        QByteArray(reinterpret_cast<const char*>(&owner), sizeof(owner)));
    (void) hasFocus(); // answered once the server has it
}

void ForeignWindow::takeFocus() {
    show();
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_window, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
    (void) waitUntil([this] { return hasFocus(); });
}

bool ForeignWindow::hasFocus() const {
    const XcbReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply && reply->focus == m_window;
}

bool ForeignWindow::grabKey(xcb_keycode_t keycode, std::uint16_t modifiers) {
    const auto cookie = xcb_grab_key_checked(
        m_connection,
        0,
        m_screen->root,
        modifiers,
        keycode,
        XCB_GRAB_MODE_ASYNC,
        XCB_GRAB_MODE_ASYNC);
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(m_connection, cookie));
    return !error;
}

void ForeignWindow::ungrabKey(xcb_keycode_t keycode, std::uint16_t modifiers) {
    const auto cookie = xcb_ungrab_key_checked(m_connection, keycode, m_screen->root, modifiers);
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(m_connection, cookie));
}

bool ForeignWindow::grabKeyboard() {
    const auto cookie = xcb_grab_keyboard(
        m_connection,
        0,
        m_screen->root,
        XCB_CURRENT_TIME,
        XCB_GRAB_MODE_ASYNC,
        XCB_GRAB_MODE_ASYNC);
    const XcbReply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(m_connection, cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void ForeignWindow::ungrabKeyboard() {
    xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
    (void) hasFocus(); // answered once the server has done it
}

int ForeignWindow::focusChanges() {
    (void) hasFocus(); // what the server sent before is here then
    readEvents();
    return m_focusChanges;
}

const std::vector<ReceivedKey>& ForeignWindow::keys() {
    readEvents();
    return m_keys;
}

void ForeignWindow::readEvents() {
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
        // As toolkits do, takes what another client sends for the same.
        constexpr std::uint8_t sentByClient = 0x80;
        const auto type = event->response_type & ~sentByClient;
        if (type == XCB_FOCUS_IN || type == XCB_FOCUS_OUT)
            ++m_focusChanges;
        if (type != XCB_KEY_PRESS && type != XCB_KEY_RELEASE)
            continue;
        const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(*event);
        m_keys.push_back(
            {type == XCB_KEY_PRESS ? ReceivedKey::Kind::Press : ReceivedKey::Kind::Release,
             key.detail,
             static_cast<std::uint16_t>(key.state & stateWithoutGroup)});
    }
}

bool ForeignWindow::hasReceived(ReceivedKey::Kind kind, xcb_keycode_t keycode) {
    return std::ranges::any_of(
        keys(), [=](const ReceivedKey& key) { return key.kind == kind && key.keycode == keycode; });
}

void ForeignWindow::setProperty(const char* name, xcb_atom_t type, const QByteArray& value) {
    const std::uint8_t format = type == XCB_ATOM_STRING ? 8 : 32;
    xcb_change_property(
        m_connection,
        XCB_PROP_MODE_REPLACE,
        m_window,
        atom(name),
        type,
        format,
        static_cast<std::uint32_t>(value.size()) * 8 / format,
        value.constData());
}

xcb_atom_t ForeignWindow::atom(const QByteArray& name) const {
    const auto cookie =
        xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.constData());
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace quorvane
