// SPDX-License-Identifier: MIT
#include <x11_server/X11HiddenWindow.h>

#include <utility>

namespace quorvane {

X11HiddenWindow::X11HiddenWindow(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_id(xcb_generate_id(m_connection->xcb())) {
    constexpr std::uint8_t depth = 0;
    constexpr std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(
        m_connection->xcb(),
        depth,
        m_id,
        m_connection->root(),
        0,
        0,
        1,
        1,
        0,
        XCB_WINDOW_CLASS_INPUT_ONLY,
        XCB_COPY_FROM_PARENT,
        XCB_CW_EVENT_MASK,
        &events);
}

X11HiddenWindow::~X11HiddenWindow() {
    xcb_destroy_window(m_connection->xcb(), m_id);
    m_connection->flush();
}

} // namespace quorvane
