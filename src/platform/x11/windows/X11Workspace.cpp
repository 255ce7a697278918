// SPDX-License-Identifier: MIT
#include <platform/ApplicationTitle.h>
#include <x11_server/QtX11.h>
#include <x11_server/X11Events.h>
#include <x11_windows/X11Workspace.h>

#include <utility>

namespace quorvane {

X11Workspace::X11Workspace(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_clock(m_connection),
      m_windows(m_connection),
      m_keyboard(m_connection),
      m_userTime(m_connection),
      m_subscription(m_connection->subscribe(
          [this](const xcb_generic_event_t& event) { handleEvent(event); })) {
    constexpr std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(
        m_connection->xcb(), m_connection->root(), XCB_CW_EVENT_MASK, &events);
    m_desktop = currentDesktop();
    track(m_windows.active());
}

FrontmostApplication X11Workspace::frontmostApplication() const {
    const auto active = m_windows.activeWindow();
    if (!track(active.window) && !m_windows.isShown(m_lastForeign))
        return {std::nullopt, active.isTold};
    return {applicationOf(m_lastForeign), active.isTold};
}

bool X11Workspace::isShown(const RunningApplication& application) const {
    return m_windows.isShown(static_cast<xcb_window_t>(application.window));
}

bool X11Workspace::receivesKeys(const RunningApplication& application) const {
    const auto window = static_cast<xcb_window_t>(application.window);
    const auto active = m_windows.active();
    const bool isInFront = active == window || m_windows.isTransientFor(active, window);
    return isInFront && m_windows.exists(active) && !m_keyboard.isGrabbedByAnother();
}

QScreen* X11Workspace::focusedScreen() const {
    const auto centre = m_windows.centreOf(m_windows.active());
    return centre ? qtx11::screenAt(*centre) : nullptr;
}

bool X11Workspace::activate(const RunningApplication& application) {
    const auto window = static_cast<xcb_window_t>(application.window);
    if (!m_windows.exists(window))
        return false;
    m_windows.requestFocus(window, m_clock.now());
    return true;
}

void X11Workspace::onFrontmostChanged(std::function<void()> handler) {
    m_frontmostChanged = std::move(handler);
}

void X11Workspace::onActiveSpaceChanged(std::function<void()> handler) {
    m_spaceChanged = std::move(handler);
}

void X11Workspace::handleEvent(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event);
    if (change == nullptr || change->window != m_connection->root())
        return;
    if (change->atom == m_connection->atom("_NET_ACTIVE_WINDOW")) {
        track(m_windows.active());
        tellFrontmostChanged();
    } else if (change->atom == m_connection->atom("_NET_CLIENT_LIST")) {
        // The window in front may be among those that are gone.
        tellFrontmostChanged();
    } else if (change->atom == m_connection->atom("_NET_CURRENT_DESKTOP")) {
        trackSpace();
        tellFrontmostChanged();
    }
}

bool X11Workspace::track(xcb_window_t window) const {
    if (!isAnotherProgram(window))
        return false;
    m_lastForeign = window;
    return true;
}

void X11Workspace::trackSpace() {
    auto desktop = currentDesktop();
    // Window managers also write the number that was there already.
    if (desktop == m_desktop)
        return;
    m_desktop = std::move(desktop);
    if (m_spaceChanged)
        m_spaceChanged();
}

void X11Workspace::tellFrontmostChanged() const {
    if (m_frontmostChanged)
        m_frontmostChanged();
}

RunningApplication X11Workspace::applicationOf(xcb_window_t window) const {
    const auto names = m_windows.classOf(window);
    return {window, names.join(u'/'), applicationTitle(names)};
}

bool X11Workspace::isAnotherProgram(xcb_window_t window) const {
    // A crashed window manager leaves _NET_ACTIVE_WINDOW behind until its successor writes it.
    return m_windows.exists(window) && !m_connection->owns(window) && !qtx11::owns(window) &&
           !m_windows.isDockOrDesktop(window);
}

std::vector<std::uint32_t> X11Workspace::currentDesktop() const {
    return m_windows.values(m_connection->root(), "_NET_CURRENT_DESKTOP", XCB_ATOM_CARDINAL);
}

} // namespace quorvane
