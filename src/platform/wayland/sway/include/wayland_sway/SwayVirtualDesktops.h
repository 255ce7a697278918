// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <wayland_sway/SwayLink.h>
#include <wayland_windows/VirtualDesktops.h>

namespace quorvane {

/// sway's workspaces.
class SwayVirtualDesktops final : public VirtualDesktops {
public:
    explicit SwayVirtualDesktops(std::shared_ptr<SwayLink> link);
    ~SwayVirtualDesktops() override;

    SwayVirtualDesktops(const SwayVirtualDesktops&) = delete;
    SwayVirtualDesktops& operator=(const SwayVirtualDesktops&) = delete;

    void onSwitched(std::function<void()> handler) override;
    [[nodiscard]] QScreen* focusedScreen() const override;

private:
    std::shared_ptr<SwayLink> m_link;
};

} // namespace quorvane
