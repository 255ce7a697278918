// SPDX-License-Identifier: MIT
#pragma once

#include <platform/WindowTraits.h>
#include <x11_server/X11Connection.h>
#include <x11_server/X11ServerClock.h>
#include <x11_windows/X11CompositingWatch.h>
#include <x11_windows/X11WindowShadow.h>
#include <x11_windows/X11WindowStates.h>
#include <x11_windows/X11Windows.h>
#include <x11_windows/X11WithdrawalWatch.h>

#include <QObject>
#include <QPointer>

#include <memory>

namespace quorvane {

/// Speaks to the window manager for Qt's windows. Does nothing where Qt does not draw on X11.
class X11WindowTraits final : public QObject, public WindowTraits {
public:
    explicit X11WindowTraits(std::shared_ptr<X11Connection> connection);

    /// Holds at once for the windows that show, and for each window at its next show.
    void setActivationPolicy(ActivationPolicy policy) override;

    void preparePanel(QWindow& window) override;
    void presentPanel(QWindow& window) override;
    void prepareDialog(QWindow& window) override;
    void orderFront(QWindow& window) override;
    void activate(QWindow& window) override;

    [[nodiscard]] bool placesWindows() const override { return true; }

    [[nodiscard]] bool isComposited() const override;
    void onCompositingChanged(std::function<void()> handler) override;
    void setShadow(QWindow& window, const QMargins& margins) override;
    [[nodiscard]] std::optional<HeldInput> heldInput() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void writeTaskbarStates(const QWindow& window);
    void showAgain(QWindow& window);
    void renewShadow(QWindow& window);
    [[nodiscard]] X11WindowStates::Change taskbarChange() const;

    std::shared_ptr<X11Connection> m_connection;
    X11ServerClock m_clock;
    X11Windows m_windows;
    X11WindowStates m_states;
    X11WithdrawalWatch m_withdrawals;
    X11CompositingWatch m_compositing;
    X11WindowShadow m_shadow;
    QPointer<QWindow> m_panel;
    QPointer<const QWindow> m_prepared; ///< a panel that is about to show
    QPointer<QWindow> m_shadowed;
    QMargins m_shadowMargins; ///< in points
    ActivationPolicy m_policy = ActivationPolicy::Regular;
};

} // namespace quorvane
