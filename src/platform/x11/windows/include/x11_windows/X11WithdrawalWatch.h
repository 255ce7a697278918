// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>
#include <x11_windows/X11Windows.h>

#include <QAbstractNativeEventFilter>
#include <QWindow>

#include <functional>
#include <memory>

namespace quorvane {

/// Finds the windows that Qt takes for shown and the window manager has withdrawn (ICCCM 4.1.3.1).
///
/// A show that follows closely on a hide may reach the server while the window manager is still
/// mapping the window for the show before: nothing is left to map then, nobody asks the window
/// manager for anything, and the hide comes to it last.
class X11WithdrawalWatch final : public QAbstractNativeEventFilter {
public:
    using Handler = std::function<void(QWindow& window)>;

    X11WithdrawalWatch(std::shared_ptr<X11Connection> connection, Handler withdrawn);

    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;

private:
    [[nodiscard]] bool isWithdrawn(xcb_window_t window) const;

    std::shared_ptr<X11Connection> m_connection;
    X11Windows m_windows;
    Handler m_withdrawn;
};

} // namespace quorvane
