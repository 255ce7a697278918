// SPDX-License-Identifier: MIT
#include <platform_x11/X11Backend.h>
#include <x11_appearance/X11Appearance.h>
#include <x11_clipboard/X11Pasteboard.h>
#include <x11_keyboard/X11AccessibilityRight.h>
#include <x11_keyboard/X11EventTapService.h>
#include <x11_keyboard/X11KeyPoster.h>
#include <x11_keyboard/X11KeyboardLayout.h>
#include <x11_windows/X11StartupNotification.h>
#include <x11_windows/X11WindowTraits.h>
#include <x11_windows/X11Workspace.h>

#include <utility>
#include <vector>

namespace quorvane {

namespace {

/// What every start asks for, one after the other if it were not for this: with them apart the
/// program would wait for the server twenty times more before the first paint.
const std::vector<const char*> atomsOfAStart{
    "CLIPBOARD",
    "QUORVANE_TIME",
    "WM_STATE",
    "_NET_ACTIVE_WINDOW",
    "_NET_CLIENT_LIST",
    "_NET_CURRENT_DESKTOP",
    "_NET_SUPPORTING_WM_CHECK",
    "_NET_WM_DESKTOP",
    "_NET_WM_STATE",
    "_NET_WM_STATE_ABOVE",
    "_NET_WM_STATE_HIDDEN",
    "_NET_WM_STATE_SKIP_PAGER",
    "_NET_WM_STATE_SKIP_TASKBAR",
    "_NET_WM_STATE_STICKY",
    "_NET_WM_WINDOW_TYPE",
    "_NET_WM_WINDOW_TYPE_DESKTOP",
    "_NET_WM_WINDOW_TYPE_DOCK",
    "_XSETTINGS_SETTINGS"};

} // namespace

std::shared_ptr<X11Backend> X11Backend::open(MainQueue& mainQueue, std::function<void()> onLost) {
    auto connection = X11Connection::open(onLost);
    if (!connection)
        return nullptr;
    connection->learnAtoms(atomsOfAStart);
    return std::shared_ptr<X11Backend>(
        new X11Backend(mainQueue, std::move(connection), std::move(onLost)));
}

X11Backend::X11Backend(
    MainQueue& mainQueue, std::shared_ptr<X11Connection> connection, std::function<void()> onLost)
    : m_mainQueue(mainQueue),
      m_connection(std::move(connection)),
      m_onLost(std::move(onLost)),
      m_keymap(X11Keymap::open(mainQueue, X11Keymap::Source::UsersKeys, m_onLost)),
      m_grabbedKeys(std::make_shared<X11GrabbedKeys>(m_connection)) {
}

X11Backend::~X11Backend() = default;

void X11Backend::addClipboard(PlatformServices& services, X11Reach reach) const {
    const auto keeper =
        reach == X11Reach::OwnWindows ? ClipboardKeeper::Compositor : ClipboardKeeper::Manager;
    services.pasteboard = std::make_unique<X11Pasteboard>(m_connection, m_mainQueue, keeper);
}

void X11Backend::addPanel(PlatformServices& services) const {
    services.windowTraits = std::make_unique<X11WindowTraits>(m_connection);
    services.startupNotification = std::make_unique<X11StartupNotification>(m_connection);
}

void X11Backend::addKeyboardLayout(PlatformServices& services) const {
    services.keyboardLayout = std::make_unique<X11KeyboardLayout>(m_keymap);
}

void X11Backend::addAppearance(PlatformServices& services) const {
    services.appearance = std::make_unique<X11Appearance>(m_connection);
}

void X11Backend::addKeys(PlatformServices& services) const {
    // Reading a keyboard's map takes some milliseconds.
    const X11KeyPoster::Keymaps keymaps{m_keymap, [&queue = m_mainQueue, onLost = m_onLost] {
                                            return X11Keymap::open(
                                                queue, X11Keymap::Source::PostedKeys, onLost);
                                        }};
    services.accessibilityRight = std::make_unique<X11AccessibilityRight>(m_connection);
    services.keyPoster = std::make_unique<X11KeyPoster>(m_connection, keymaps, m_grabbedKeys);
}

void X11Backend::addShortcut(PlatformServices& services) const {
    services.eventTaps =
        std::make_unique<X11EventTapService>(m_connection, m_mainQueue, m_grabbedKeys);
}

void X11Backend::addWindows(PlatformServices& services) const {
    services.workspace = std::make_unique<X11Workspace>(m_connection);
}

} // namespace quorvane
