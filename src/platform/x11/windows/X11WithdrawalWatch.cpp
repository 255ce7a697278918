// SPDX-License-Identifier: MIT
#include <x11_server/QtX11.h>
#include <x11_server/X11Events.h>
#include <x11_windows/X11WithdrawalWatch.h>

#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

constexpr auto stateProperty = "WM_STATE";
constexpr std::uint32_t withdrawnState = 0;

/// Null if Qt knows no such window, or does not show it.
QWindow* shownWindow(xcb_window_t id) {
    const auto windows = QGuiApplication::topLevelWindows();
    const auto found = std::ranges::find_if(windows, [id](const QWindow* window) {
        return window->isVisible() && window->handle() != nullptr && window->winId() == id;
    });
    return found == windows.end() ? nullptr : *found;
}

} // namespace

X11WithdrawalWatch::X11WithdrawalWatch(
    std::shared_ptr<X11Connection> connection, Handler withdrawn, Handler managed)
    : m_connection(std::move(connection)),
      m_windows(m_connection),
      m_withdrawn(std::move(withdrawn)),
      m_managed(std::move(managed)) {
    if (qtx11::connection() != nullptr)
        qGuiApp->installNativeEventFilter(this);
}

bool X11WithdrawalWatch::nativeEventFilter(const QByteArray& kind, void* message, qintptr*) {
    if (kind != "xcb_generic_event_t")
        return false;
    const auto* change =
        eventAs<xcb_property_notify_event_t>(*static_cast<const xcb_generic_event_t*>(message));
    if (change == nullptr || change->atom != m_connection->atom(stateProperty))
        return false;
    if (auto* window = shownWindow(change->window))
        (isWithdrawn(change->window) ? m_withdrawn : m_managed)(*window);
    return false;
}

bool X11WithdrawalWatch::isWithdrawn(xcb_window_t window) const {
    // Some window managers remove the state, others set it.
    const auto state = m_windows.values(window, stateProperty, m_connection->atom(stateProperty));
    const bool isManaged = !state.empty() && state.front() != withdrawnState;
    return !isManaged && !m_windows.isViewable(window);
}

} // namespace quorvane
