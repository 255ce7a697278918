// SPDX-License-Identifier: MIT
#include <platform_x11/X11Backend.h>
#include <platform_x11/X11Services.h>

namespace quorvane {

bool addX11Services(
    PlatformServices& services,
    MainQueue& mainQueue,
    X11Reach reach,
    const std::function<void()>& onLost) {
    const auto backend = X11Backend::open(mainQueue, onLost);
    if (!backend)
        return false;
    backend->addClipboard(services, reach);
    backend->addPanel(services);
    backend->addKeyboardLayout(services);
    backend->addAppearance(services);
    if (reach == X11Reach::OwnWindows)
        return true;
    backend->addKeys(services);
    backend->addShortcut(services);
    backend->addWindows(services);
    return true;
}

} // namespace quorvane
