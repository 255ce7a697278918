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

namespace quorvane {

std::shared_ptr<X11Backend> X11Backend::open(MainQueue& mainQueue, std::function<void()> onLost) {
    auto connection = X11Connection::open(onLost);
    if (!connection)
        return nullptr;
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

void X11Backend::addClipboard(PlatformServices& services) const {
    services.pasteboard = std::make_unique<X11Pasteboard>(m_connection, m_mainQueue);
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
    const X11KeyPoster::Keymaps keymaps{
        m_keymap, X11Keymap::open(m_mainQueue, X11Keymap::Source::PostedKeys, m_onLost)};
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
