// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

#include <memory>
#include <wayland_kwin/PlasmaVirtualDesktops.h>
#include <wayland_kwin/PlasmaWindows.h>

namespace quorvane {

/// What is in front, as KWin tells it to taskbars.
class PlasmaWorkspace final : public Workspace {
public:
    PlasmaWorkspace(
        std::shared_ptr<PlasmaWindows> windows, std::unique_ptr<PlasmaVirtualDesktops> desktops);
    ~PlasmaWorkspace() override;

    PlasmaWorkspace(const PlasmaWorkspace&) = delete;
    PlasmaWorkspace& operator=(const PlasmaWorkspace&) = delete;

    [[nodiscard]] FrontmostApplication frontmostApplication() const override;
    [[nodiscard]] bool isShown(const RunningApplication& application) const override;
    [[nodiscard]] bool receivesKeys(const RunningApplication& application) const override;
    [[nodiscard]] QScreen* focusedScreen() const override;
    [[nodiscard]] bool activate(const RunningApplication& application) override;
    void onFrontmostChanged(std::function<void()> handler) override;
    void onActiveSpaceChanged(std::function<void()> handler) override;

private:
    void track();
    [[nodiscard]] bool isShown(const PlasmaWindow* window) const;

    std::shared_ptr<PlasmaWindows> m_windows;
    std::unique_ptr<PlasmaVirtualDesktops> m_desktops;
    std::uint64_t m_lastForeign = 0;
    std::uint64_t m_lastActive = 0;
    std::function<void()> m_frontmostChanged;
    std::function<void()> m_spaceChanged;
};

} // namespace quorvane
