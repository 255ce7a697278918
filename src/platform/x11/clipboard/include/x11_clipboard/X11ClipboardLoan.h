// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <x11_clipboard/X11SelectionOwner.h>

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <memory>
#include <optional>

class QWindow;

namespace quorvane {

/// Lends what we own of CLIPBOARD to Qt's clipboard while a window of ours has the focus, and takes
/// it back afterwards. A text field that pastes asks the owner by way of Qt, which blocks the main
/// loop for as long as fifteen seconds until it answers; an owner on that very loop never would.
/// Qt alone cannot own it: it knows neither the wire types nor the units of what we restore.
class X11ClipboardLoan final : public QObject, private QAbstractNativeEventFilter {
public:
    /// Queue and owner must outlive it. Does nothing where Qt does not run on X11.
    X11ClipboardLoan(
        std::shared_ptr<X11Connection> connection, MainQueue& queue, X11SelectionOwner& clipboard);
    ~X11ClipboardLoan() override;

    /// To be called when we may have taken CLIPBOARD.
    void offer();

    /// Takes back what is lent, and lends nothing before the next `offer`.
    void suspend();

private:
    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;
    void followFocus();
    void refreshQtTime(const QWindow& window);
    void lend();
    [[nodiscard]] bool isLendable() const;
    void takeBack();

    std::shared_ptr<X11Connection> m_connection;
    MainQueue& m_queue;
    X11SelectionOwner& m_clipboard;
    bool m_isSuspended = false;
    Deadline m_following;
    std::optional<xcb_timestamp_t> m_qtTime; ///< what Qt's clock has been set to, until we lend
    Deadline m_lending;
};

} // namespace quorvane
