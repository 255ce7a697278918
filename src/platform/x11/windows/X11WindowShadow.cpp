// SPDX-License-Identifier: MIT
#include <x11_server/X11PropertyValue.h>
#include <x11_windows/X11WindowShadow.h>

#include <QRect>
#include <xcb/xfixes.h>

namespace quorvane {

void X11WindowShadow::set(xcb_window_t window, QSize size, const QMargins& margins) const {
    const auto extent = [](int points) {
        return static_cast<std::uint32_t>(points);
    };
    writePropertyValue(
        *m_connection,
        window,
        m_connection->atom("_GTK_FRAME_EXTENTS"),
        propertyValue(
            XCB_ATOM_CARDINAL,
            {extent(margins.left()),
             extent(margins.right()),
             extent(margins.top()),
             extent(margins.bottom())}));
    const auto inside = QRect(QPoint(), size).marginsRemoved(margins);
    const xcb_rectangle_t rectangle{
        static_cast<std::int16_t>(inside.x()),
        static_cast<std::int16_t>(inside.y()),
        static_cast<std::uint16_t>(inside.width()),
        static_cast<std::uint16_t>(inside.height())};
    auto* xcb = m_connection->xcb();
    // A request of an extension that the server lacks ends the connection.
    const auto* extension = xcb_get_extension_data(xcb, &xcb_xfixes_id);
    if (extension == nullptr || extension->present == 0)
        return;
    const auto region = xcb_generate_id(xcb);
    xcb_xfixes_create_region(xcb, region, 1, &rectangle);
    xcb_xfixes_set_window_shape_region(xcb, window, XCB_SHAPE_SK_INPUT, 0, 0, region);
    xcb_xfixes_destroy_region(xcb, region);
    m_connection->flush();
}

} // namespace quorvane
