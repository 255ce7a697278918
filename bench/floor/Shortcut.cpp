// SPDX-License-Identifier: MIT
// The least that shows and hides a window at Ctrl+Shift+Super+D. With an argument the window is of
// the panel's kind: without a frame, above others.
#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QLabel>
#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>

namespace {

constexpr xcb_keycode_t keyD = 40; // the evdev code plus eight
constexpr auto modifiers = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_4;

class Shortcut final : public QAbstractNativeEventFilter {
public:
    explicit Shortcut(QWidget& window) : m_window(window) {}

    bool
    nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* /*result*/) override {
        const auto* event = static_cast<const xcb_key_press_event_t*>(message);
        if ((event->response_type & 0x7f) != XCB_KEY_PRESS || event->detail != keyD)
            return false;
        m_window.setVisible(!m_window.isVisible());
        if (m_window.isVisible()) {
            m_window.raise();
            m_window.activateWindow();
        }
        return true;
    }

private:
    QWidget& m_window;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLabel window(QStringLiteral("A text"));
    window.resize(504, 488);
    if (argc > 1)
        window.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    Shortcut shortcut(window);
    application.installNativeEventFilter(&shortcut);
    auto* server = application.nativeInterface<QNativeInterface::QX11Application>()->connection();
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    xcb_grab_key(server, 1, root, modifiers, keyD, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_flush(server);
    return QApplication::exec();
}
