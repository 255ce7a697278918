// SPDX-License-Identifier: MIT
#include <platform/ApplicationTitle.h>

#include <utility>
#include <wayland_windows/WaylandWorkspace.h>

namespace quorvane {

WaylandWorkspace::WaylandWorkspace(
    std::shared_ptr<WaylandConnection> connection,
    std::shared_ptr<WaylandToplevels> windows,
    QStringList ownNames,
    std::unique_ptr<VirtualDesktops> desktops)
    : m_connection(std::move(connection)),
      m_windows(std::move(windows)),
      m_ownNames(std::move(ownNames)),
      m_desktops(std::move(desktops)) {
    m_windows->onChanged([this] { track(); });
    if (m_desktops) {
        m_desktops->onSwitched([this] {
            // It comes on another connection than what happened to the windows.
            m_switching = m_connection->whenSettled([this] { trackDesktop(); });
        });
    }
    track();
}

FrontmostApplication WaylandWorkspace::frontmostApplication() const {
    if (!m_windows->isListed())
        return {};
    const auto* window = m_windows->find(m_lastForeign);
    if (window == nullptr || !isShown(m_lastForeign))
        return {std::nullopt, true};
    return {RunningApplication{window->id, window->appId, applicationTitle({window->appId})}, true};
}

bool WaylandWorkspace::isShown(const RunningApplication& application) const {
    return isShown(application.window);
}

bool WaylandWorkspace::isShown(std::uint64_t window) const {
    const auto* found = m_windows->find(window);
    const bool isOnOtherDesktop = m_isLeftBehind && window == m_lastForeign;
    return found != nullptr && !found->isMinimised && !isOnOtherDesktop;
}

bool WaylandWorkspace::receivesKeys(const RunningApplication& application) const {
    // A locker or a launcher that takes the keyboard leaves no window activated.
    const auto* active = m_windows->activated();
    return active != nullptr &&
           (active->id == application.window || active->parent == application.window);
}

QScreen* WaylandWorkspace::focusedScreen() const {
    return m_desktops ? m_desktops->focusedScreen() : nullptr;
}

bool WaylandWorkspace::activate(const RunningApplication& application) {
    // On another desktop the compositor would show that one, which nobody asked for.
    if (!isShown(application.window))
        return false;
    return receivesKeys(application) || m_windows->activate(application.window);
}

void WaylandWorkspace::onFrontmostChanged(std::function<void()> handler) {
    m_frontmostChanged = std::move(handler);
}

void WaylandWorkspace::onActiveSpaceChanged(std::function<void()> handler) {
    m_spaceChanged = std::move(handler);
}

void WaylandWorkspace::track() {
    const auto* active = m_windows->activated();
    if (active != nullptr && !isOwn(*active)) {
        m_lastForeign = active->id;
        m_isLeftBehind = false;
    }
    if (m_frontmostChanged)
        m_frontmostChanged();
}

void WaylandWorkspace::trackDesktop() {
    const auto* active = m_windows->activated();
    m_isLeftBehind = active == nullptr || active->id != m_lastForeign;
    if (m_spaceChanged)
        m_spaceChanged();
    if (m_frontmostChanged)
        m_frontmostChanged();
}

bool WaylandWorkspace::isOwn(const WaylandToplevel& window) const {
    return m_ownNames.contains(window.appId, Qt::CaseInsensitive);
}

} // namespace quorvane
