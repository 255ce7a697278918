// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>
#include <wayland_sway/SwayVirtualDesktops.h>

namespace quorvane {

SwayVirtualDesktops::SwayVirtualDesktops(std::shared_ptr<SwayLink> link) : m_link(std::move(link)) {
}

SwayVirtualDesktops::~SwayVirtualDesktops() {
    m_link->onWorkspaceFocus({});
}

void SwayVirtualDesktops::onSwitched(std::function<void()> handler) {
    m_link->onWorkspaceFocus([handler = std::move(handler)](const SwayWorkspaceFocus& focus) {
        if (focus.isSwitched)
            handler();
    });
}

QScreen* SwayVirtualDesktops::focusedScreen() const {
    const auto screens = QGuiApplication::screens();
    const auto found = std::ranges::find_if(screens, [this](const QScreen* screen) {
        return screen->name() == m_link->focusedOutput();
    });
    return found == screens.end() ? nullptr : *found;
}

} // namespace quorvane
