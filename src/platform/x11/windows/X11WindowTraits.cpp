// SPDX-License-Identifier: MIT
#include <x11_server/QtX11.h>
#include <x11_server/X11KeyState.h>
#include <x11_server/X11PropertyValue.h>
#include <x11_server/XcbReply.h>
#include <x11_windows/X11WindowTraits.h>

#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace quorvane {

namespace {

constexpr std::uint32_t allDesktops = 0xFFFFFFFF;
constexpr int pressedButtons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;

constexpr X11WindowStates::Pair panelStates{"_NET_WM_STATE_STICKY", "_NET_WM_STATE_ABOVE"};
constexpr X11WindowStates::Pair hiddenFromTaskbar{
    "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"};

// The window manager does not manage popups and tooltips.
bool isManaged(const QWindow& window) {
    return window.isTopLevel() && window.handle() != nullptr && window.type() != Qt::Popup &&
           window.type() != Qt::ToolTip && !window.flags().testFlag(Qt::BypassWindowManagerHint);
}

xcb_window_t idOf(const QWindow& window) {
    return static_cast<xcb_window_t>(window.winId());
}

} // namespace

X11WindowTraits::X11WindowTraits(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_clock(m_connection),
      m_windows(m_connection),
      m_states(m_connection),
      m_withdrawals(
          m_connection,
          [this](QWindow& window) { showAgain(window); },
          [this](QWindow& window) { renewShadow(window); }),
      m_compositing(m_connection),
      m_shadow(m_connection) {
    if (qtx11::connection() != nullptr)
        QCoreApplication::instance()->installEventFilter(this);
}

void X11WindowTraits::setActivationPolicy(ActivationPolicy policy) {
    m_policy = policy;
    if (qtx11::connection() == nullptr)
        return;
    qtx11::waitForServer();
    for (const auto* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && isManaged(*window))
            m_states.request(idOf(*window), hiddenFromTaskbar, taskbarChange());
    }
}

bool X11WindowTraits::isComposited() const {
    return m_compositing.isComposited();
}

void X11WindowTraits::onCompositingChanged(std::function<void()> handler) {
    m_compositing.onChanged(std::move(handler));
}

void X11WindowTraits::setShadow(QWindow& window, const QMargins& margins) {
    if (qtx11::connection() == nullptr)
        return;
    m_shadowed = &window;
    m_shadowMargins = margins;
    qtx11::waitForServer();
    const double scale = window.devicePixelRatio();
    const auto pixels = [scale](int points) {
        return qRound(points * scale);
    };
    m_shadow.set(
        idOf(window),
        {pixels(window.width()), pixels(window.height())},
        {pixels(margins.left()),
         pixels(margins.top()),
         pixels(margins.right()),
         pixels(margins.bottom())});
}

// Window managers that put a window into a frame give that the shape which they hear of then.
void X11WindowTraits::renewShadow(QWindow& window) {
    if (m_shadowed == &window)
        setShadow(window, m_shadowMargins);
}

std::optional<HeldInput> X11WindowTraits::heldInput() const {
    auto* xcb = m_connection->xcb();
    const XcbReply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(xcb, xcb_query_pointer(xcb, m_connection->root()), nullptr));
    if (!pointer)
        return std::nullopt;
    return HeldInput{
        x11keystate::keysDown(xcb),
        static_cast<std::uint8_t>((pointer->mask & pressedButtons) / XCB_BUTTON_MASK_1)};
}

bool X11WindowTraits::eventFilter(QObject* watched, QEvent* event) {
    // Qt announces the show before it maps the window.
    if (event->type() != QEvent::Show || !watched->isWindowType())
        return false;
    const auto& window = *static_cast<const QWindow*>(watched);
    // The panel has them already, and each look at what a window has waits for the server.
    if (std::exchange(m_prepared, nullptr) != &window && isManaged(window))
        writeTaskbarStates(window);
    return false;
}

void X11WindowTraits::writeTaskbarStates(const QWindow& window) {
    qtx11::waitForServer();
    m_states.write(idOf(window), {{hiddenFromTaskbar, taskbarChange()}});
    m_connection->waitForServer();
}

// With its states, which a window manager throws away as it withdraws a window.
void X11WindowTraits::showAgain(QWindow& window) {
    if (!isManaged(window))
        return;
    const bool isPanel = m_panel == &window;
    if (isPanel)
        preparePanel(window);
    else
        writeTaskbarStates(window);
    xcb_map_window(qtx11::connection(), idOf(window));
    if (isPanel)
        presentPanel(window);
    else
        qtx11::waitForServer();
}

void X11WindowTraits::preparePanel(QWindow& window) {
    if (qtx11::connection() == nullptr)
        return;
    const auto id = idOf(window);
    qtx11::waitForServer();
    // Some window managers ignore the desktop of a window that is not yet mapped and need the
    // state; others do not support sticky windows and need the desktop.
    const auto desktop = m_connection->atom("_NET_WM_DESKTOP");
    writePropertyValue(*m_connection, id, desktop, propertyValue(XCB_ATOM_CARDINAL, {allDesktops}));
    m_states.write(
        id, {{panelStates, X11WindowStates::Change::Add}, {hiddenFromTaskbar, taskbarChange()}});
    m_prepared = &window;
    m_connection->waitForServer();
}

void X11WindowTraits::presentPanel(QWindow& window) {
    if (qtx11::connection() == nullptr)
        return;
    m_panel = &window;
    window.raise();
    // Ours must not overtake the request that maps the window.
    qtx11::waitForServer();
    const auto id = idOf(window);
    m_windows.requestOfManager(id, "_NET_WM_DESKTOP", {allDesktops, sourcePager, 0, 0, 0});
    // Again what preparePanel() wrote: a window manager that was still handling the last hide has
    // removed it together with its own states.
    m_states.request(id, panelStates, X11WindowStates::Change::Add);
    m_states.request(id, hiddenFromTaskbar, taskbarChange());
    m_windows.requestFocus(id, m_clock.now());
}

void X11WindowTraits::prepareDialog(QWindow& window) {
    if (qtx11::connection() == nullptr)
        return;
    qtx11::waitForServer();
    const auto dialog = m_connection->atom("_NET_WM_WINDOW_TYPE_DIALOG");
    const auto normal = m_connection->atom("_NET_WM_WINDOW_TYPE_NORMAL");
    writePropertyValue(
        *m_connection,
        idOf(window),
        m_connection->atom("_NET_WM_WINDOW_TYPE"),
        propertyValue(XCB_ATOM_ATOM, {dialog, normal}));
    m_connection->waitForServer();
}

void X11WindowTraits::orderFront(QWindow& window) {
    if (qtx11::connection() == nullptr)
        return;
    window.raise();
    qtx11::waitForServer();
}

void X11WindowTraits::activate(QWindow& window) {
    window.raise();
    if (qtx11::connection() == nullptr)
        return;
    // Ours must not overtake the request that maps the window.
    qtx11::waitForServer();
    m_windows.requestFocus(idOf(window), m_clock.now());
}

X11WindowStates::Change X11WindowTraits::taskbarChange() const {
    using Change = X11WindowStates::Change;
    return m_policy == ActivationPolicy::Accessory ? Change::Add : Change::Remove;
}

} // namespace quorvane
