// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PlatformServices.h>
#include <platform_x11/X11Services.h>

#include <functional>
#include <memory>

namespace quorvane {

class X11Connection;
class X11GrabbedKeys;
class X11Keymap;

/// The desktop services that an X server has, one by one. They share what lies below them, and may
/// outlive this.
class X11Backend {
public:
    /// None where $DISPLAY names no server that answers. The application object must exist before,
    /// and the queue outlive the services.
    [[nodiscard]] static std::shared_ptr<X11Backend>
    open(MainQueue& mainQueue, std::function<void()> onLost = {});

    ~X11Backend();

    X11Backend(const X11Backend&) = delete;
    X11Backend& operator=(const X11Backend&) = delete;

    // Each replaces that service among the others. These are what XWayland has, too: the compositor
    // shares the clipboard, and knows our own windows.
    void addClipboard(PlatformServices& services, X11Reach reach) const;
    void addPanel(PlatformServices& services) const;
    void addKeyboardLayout(PlatformServices& services) const;
    void addAppearance(PlatformServices& services) const;

    // The keys and the windows of the programs of Wayland are out of XWayland's reach.
    void addKeys(PlatformServices& services) const;
    void addShortcut(PlatformServices& services) const;
    void addWindows(PlatformServices& services) const;

private:
    X11Backend(
        MainQueue& mainQueue,
        std::shared_ptr<X11Connection> connection,
        std::function<void()> onLost);

    MainQueue& m_mainQueue;
    std::shared_ptr<X11Connection> m_connection;
    std::function<void()> m_onLost;
    std::shared_ptr<X11Keymap> m_keymap;
    std::shared_ptr<X11GrabbedKeys> m_grabbedKeys;
};

} // namespace quorvane
