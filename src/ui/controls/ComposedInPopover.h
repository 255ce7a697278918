// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace quorvane {

/// Lets letters that are composed of several keys reach an open popover. There are platforms where
/// the keyboard stays with the window below a popup: keys are handed on to the popup, but input
/// methods speak with what has the focus below.
class ComposedInPopover final : public QObject {
    Q_OBJECT

public:
    /// To be made while the popover opens, and to go before it.
    explicit ComposedInPopover(QWidget& popover);
    ~ComposedInPopover() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QObject* focusObject);
    void leave();

    QWidget& m_popover;
    QPointer<QObject> m_below;
};

} // namespace quorvane
