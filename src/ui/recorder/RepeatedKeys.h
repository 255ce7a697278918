// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QKeyEvent;

namespace quorvane {

/// Keeps the repeats of one key from every window of this program until it is released. The key
/// that ends a recording moves the focus while it is still down: what it repeats is meant for
/// nobody, and a repeated Escape would close the window.
class RepeatedKeys final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// From the press that is being delivered on.
    void swallowRepeatsOf(const QKeyEvent& press);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    quint32 m_scanCode = 0;
};

} // namespace quorvane
