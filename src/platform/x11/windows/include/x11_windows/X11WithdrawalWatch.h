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
/// When a window is shown, hidden and shown again quickly, the window manager may still be mapping
/// it for the first show. The second show then changes nothing, and the window manager handles the
/// hide last: the window stays hidden.
class X11WithdrawalWatch final : public QAbstractNativeEventFilter {
public:
    using Handler = std::function<void(QWindow& window)>;

    /// `managed` hears of the other shown windows whose state the window manager sets.
    X11WithdrawalWatch(
        std::shared_ptr<X11Connection> connection, Handler withdrawn, Handler managed);

    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;

private:
    [[nodiscard]] bool isWithdrawn(xcb_window_t window) const;

    std::shared_ptr<X11Connection> m_connection;
    X11Windows m_windows;
    Handler m_withdrawn;
    Handler m_managed;
};

} // namespace quorvane
