// SPDX-License-Identifier: MIT
#include <platform_x11/X11Services.h>
#include <x11_appearance/X11Appearance.h>
#include <x11_clipboard/X11Pasteboard.h>
#include <x11_keyboard/X11AccessibilityRight.h>
#include <x11_keyboard/X11EventTapService.h>
#include <x11_keyboard/X11KeyPoster.h>
#include <x11_keyboard/X11KeyboardLayout.h>
#include <x11_windows/X11WindowTraits.h>
#include <x11_windows/X11Workspace.h>

#include <utility>

namespace quorvane {

namespace {

void addServicesOfTheSession(
    PlatformServices& services,
    MainQueue& mainQueue,
    const std::shared_ptr<X11Connection>& connection,
    X11KeyPoster::Keymaps keymaps) {
    const auto grabbedKeys = std::make_shared<X11GrabbedKeys>(connection);
    services.accessibilityRight = std::make_unique<X11AccessibilityRight>(connection);
    services.eventTaps = std::make_unique<X11EventTapService>(connection, mainQueue, grabbedKeys);
    services.keyPoster =
        std::make_unique<X11KeyPoster>(connection, std::move(keymaps), grabbedKeys);
    services.workspace = std::make_unique<X11Workspace>(connection);
}

} // namespace

bool addX11Services(
    PlatformServices& services,
    MainQueue& mainQueue,
    X11Reach reach,
    const std::function<void()>& onLost) {
    const auto connection = X11Connection::open(onLost);
    if (!connection)
        return false;
    const std::shared_ptr<X11Keymap> keymap =
        X11Keymap::open(mainQueue, X11Keymap::Source::UsersKeys, onLost);
    services.appearance = std::make_unique<X11Appearance>(connection);
    services.pasteboard = std::make_unique<X11Pasteboard>(connection, mainQueue);
    services.keyboardLayout = std::make_unique<X11KeyboardLayout>(keymap);
    services.windowTraits = std::make_unique<X11WindowTraits>(connection);
    if (reach == X11Reach::Session)
        addServicesOfTheSession(
            services,
            mainQueue,
            connection,
            {keymap, X11Keymap::open(mainQueue, X11Keymap::Source::PostedKeys, onLost)});
    return true;
}

} // namespace quorvane
