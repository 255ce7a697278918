// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

#include <QStringList>

#include <memory>
#include <wayland_windows/VirtualDesktops.h>
#include <wayland_windows/WaylandToplevels.h>

namespace quorvane {

/// What is in front, by the compositor's list of windows. The list has no virtual desktops: a
/// window on another one counts as shown but where VirtualDesktops tells of the switch.
class WaylandWorkspace final : public Workspace {
public:
    /// Windows with one of the names are our own, and count as no application.
    WaylandWorkspace(
        std::shared_ptr<WaylandConnection> connection,
        std::shared_ptr<WaylandToplevels> windows,
        QStringList ownNames,
        std::unique_ptr<VirtualDesktops> desktops);

    [[nodiscard]] FrontmostApplication frontmostApplication() const override;
    [[nodiscard]] bool isShown(const RunningApplication& application) const override;
    [[nodiscard]] bool receivesKeys(const RunningApplication& application) const override;
    [[nodiscard]] QScreen* focusedScreen() const override;
    [[nodiscard]] bool activate(const RunningApplication& application) override;
    void onFrontmostChanged(std::function<void()> handler) override;
    void onActiveSpaceChanged(std::function<void()> handler) override;

private:
    void track();
    void trackDesktop();
    [[nodiscard]] bool isShown(std::uint64_t window) const;
    [[nodiscard]] bool isOwn(const WaylandToplevel& window) const;

    std::shared_ptr<WaylandConnection> m_connection;
    std::shared_ptr<WaylandToplevels> m_windows;
    QStringList m_ownNames;
    std::unique_ptr<VirtualDesktops> m_desktops;
    std::uint64_t m_lastForeign = 0;
    bool m_isLeftBehind = false; ///< m_lastForeign, on the desktop before
    WaylandSubscription m_switching;
    std::function<void()> m_frontmostChanged;
    std::function<void()> m_spaceChanged;
};

} // namespace quorvane
