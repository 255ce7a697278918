// SPDX-License-Identifier: MIT
#include "X11LentData.h"
#include "X11QtClipboard.h"
#include "X11TimeOrder.h"

#include <x11_clipboard/X11ClipboardLoan.h>
#include <x11_server/QtX11.h>
#include <x11_server/X11Events.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace quorvane {

namespace {

constexpr auto timeProperty = "QUORVANE_TIME";

} // namespace

X11ClipboardLoan::X11ClipboardLoan(
    std::shared_ptr<X11Connection> connection, MainQueue& queue, X11SelectionOwner& clipboard)
    : m_connection(std::move(connection)),
      m_queue(queue),
      m_clipboard(clipboard) {
    if (qtx11::connection() == nullptr)
        return;
    qGuiApp->installNativeEventFilter(this);
    m_clipboard.onLateTextEnded([this] { followFocus(); });
    // Between two windows of ours the focus is nowhere for a moment.
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this] {
        m_following = m_queue.after(Seconds(0), [this] { followFocus(); });
    });
}

X11ClipboardLoan::~X11ClipboardLoan() {
    m_clipboard.onLateTextEnded([] {});
}

void X11ClipboardLoan::offer() {
    m_isSuspended = false;
    followFocus();
}

void X11ClipboardLoan::suspend() {
    m_isSuspended = true;
    takeBack();
}

void X11ClipboardLoan::followFocus() {
    if (qtx11::connection() == nullptr)
        return;
    const auto* focus = QGuiApplication::focusWindow();
    if (focus == nullptr)
        takeBack();
    else if (isLendable())
        refreshQtTime(*focus);
}

// Qt takes a selection as of the latest time that it has seen in an event, and the server ignores a
// claim that is older than the present owner's. This event brings Qt up to date; then we lend.
void X11ClipboardLoan::refreshQtTime(const QWindow& window) {
    const auto id = static_cast<xcb_window_t>(window.winId());
    xcb_change_property(
        m_connection->xcb(),
        XCB_PROP_MODE_APPEND,
        id,
        m_connection->atom(timeProperty),
        XCB_ATOM_INTEGER,
        32,
        0,
        nullptr);
    m_connection->flush();
}

// Qt takes note of an event's time after its filters: we lend before the next event, which may be
// the key that pastes, or else in the next event-loop iteration.
bool X11ClipboardLoan::nativeEventFilter(const QByteArray& kind, void* message, qintptr*) {
    const auto* event = qtx11::eventIn(kind, message);
    if (event == nullptr)
        return false;
    lend();
    const auto* change = eventAs<xcb_property_notify_event_t>(*event);
    if (change != nullptr && change->atom == m_connection->atom(timeProperty)) {
        m_qtTime = change->time;
        m_lending = m_queue.after(Seconds(0), [this] { lend(); });
    }
    return false;
}

void X11ClipboardLoan::lend() {
    const auto qtTime = std::exchange(m_qtTime, std::nullopt);
    const bool isWanted = !m_isSuspended && QGuiApplication::focusWindow() != nullptr;
    if (!qtTime || !isLendable() || !isWanted)
        return;
    const bool isLaterThanOurs = !isEarlier(*qtTime, m_clipboard.since());
    if (isLaterThanOurs)
        QGuiApplication::clipboard()->setMimeData(new X11LentData(m_clipboard.content()->item()));
}

// Qt would give everybody the same.
bool X11ClipboardLoan::isLendable() const {
    return m_clipboard.content() != nullptr && !m_clipboard.hasLateText();
}

void X11ClipboardLoan::takeBack() {
    if (const auto* lent = qtx11::lentData())
        m_clipboard.resume(PasteboardItem(lent->item()));
}

} // namespace quorvane
