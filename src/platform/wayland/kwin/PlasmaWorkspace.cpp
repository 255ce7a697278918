// SPDX-License-Identifier: MIT
#include <platform/ApplicationTitle.h>

#include <QCoreApplication>
#include <QGuiApplication>

#include <utility>
#include <wayland_kwin/PlasmaWorkspace.h>

namespace quorvane {

namespace {

bool isOwn(const PlasmaWindow& window) {
    return window.pid == static_cast<std::uint32_t>(QCoreApplication::applicationPid());
}

} // namespace

PlasmaWorkspace::PlasmaWorkspace(
    std::shared_ptr<PlasmaWindows> windows, std::unique_ptr<PlasmaVirtualDesktops> desktops)
    : m_windows(std::move(windows)),
      m_desktops(std::move(desktops)) {
    m_windows->onChanged([this] { track(); });
    m_desktops->onChanged([this] {
        if (m_spaceChanged)
            m_spaceChanged();
        track();
    });
    track();
}

PlasmaWorkspace::~PlasmaWorkspace() {
    m_windows->onChanged({});
}

FrontmostApplication PlasmaWorkspace::frontmostApplication() const {
    if (!m_windows->isListed())
        return {};
    const auto* window = m_windows->find(m_lastForeign);
    if (!isShown(window))
        return {std::nullopt, true};
    return {RunningApplication{window->id, window->appId, applicationTitle({window->appId})}, true};
}

bool PlasmaWorkspace::isShown(const RunningApplication& application) const {
    return isShown(m_windows->find(application.window));
}

bool PlasmaWorkspace::isShown(const PlasmaWindow* window) const {
    if (window == nullptr || window->isMinimised)
        return false;
    const auto& current = m_desktops->current();
    return window->isOnAllDesktops || window->desktops.isEmpty() || current.isEmpty() ||
           window->desktops.contains(current);
}

bool PlasmaWorkspace::receivesKeys(const RunningApplication& application) const {
    const auto* active = m_windows->active();
    return active != nullptr &&
           (active->id == application.window || active->parent == application.window);
}

QScreen* PlasmaWorkspace::focusedScreen() const {
    const auto* active = m_windows->active();
    return active == nullptr ? nullptr : QGuiApplication::screenAt(active->frame.center());
}

bool PlasmaWorkspace::activate(const RunningApplication& application) {
    // On another desktop KWin would show that one, which nobody asked for.
    if (!isShown(application))
        return false;
    return receivesKeys(application) || m_windows->activate(application.window);
}

void PlasmaWorkspace::onFrontmostChanged(std::function<void()> handler) {
    m_frontmostChanged = std::move(handler);
}

void PlasmaWorkspace::onActiveSpaceChanged(std::function<void()> handler) {
    m_spaceChanged = std::move(handler);
}

void PlasmaWorkspace::track() {
    const auto* active = m_windows->active();
    const auto now = active != nullptr ? active->id : 0;
    if (active != nullptr && !isOwn(*active))
        m_lastForeign = now;
    // Titles and places change often, and matter to nobody here.
    if (std::exchange(m_lastActive, now) != now && m_frontmostChanged)
        m_frontmostChanged();
}

} // namespace quorvane
