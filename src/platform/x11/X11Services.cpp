// SPDX-License-Identifier: MIT
#include <platform_x11/X11Services.h>

#include <x11_clipboard/X11Pasteboard.h>
#include <x11_keyboard/X11AccessibilityRight.h>
#include <x11_keyboard/X11EventTapService.h>
#include <x11_keyboard/X11KeyPoster.h>
#include <x11_keyboard/X11KeyboardLayout.h>
#include <x11_windows/X11WindowTraits.h>
#include <x11_windows/X11Workspace.h>

namespace quorvane {

std::optional<PlatformServices> makeX11Services(MainQueue& mainQueue) {
    const auto connection = X11Connection::open();
    if (!connection)
        return std::nullopt;
    const std::shared_ptr<X11Keymap> keymap = X11Keymap::open(mainQueue);
    const auto postedKeys = std::make_shared<X11PostedKeys>();
    return PlatformServices{
        .accessibilityRight = std::make_unique<X11AccessibilityRight>(connection),
        .eventTaps = std::make_unique<X11EventTapService>(connection, mainQueue, postedKeys),
        .keyPoster = std::make_unique<X11KeyPoster>(connection, keymap, postedKeys),
        .pasteboard = std::make_unique<X11Pasteboard>(connection, mainQueue),
        .workspace = std::make_unique<X11Workspace>(connection),
        .keyboardLayout = std::make_unique<X11KeyboardLayout>(keymap),
        .windowTraits = std::make_unique<X11WindowTraits>(connection),
    };
}

} // namespace quorvane
