// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

namespace quorvane {

/// Draws the ring around whatever has the keyboard's focus in its window, above everything else,
/// so that focus takes no room and moves nothing. It shows while the keyboard is what moves the
/// focus: a click hides it.
class FocusRing final : public QWidget {
    Q_OBJECT

public:
    /// For the window (or popover) that it becomes a child of.
    explicit FocusRing(QWidget* window);

    /// Shows the ring around `target`, which must be FocusShaped; null hides it.
    void surround(QWidget* target);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void noteFocus(QWidget* widget, Qt::FocusReason reason);
    void follow();

    QWidget* m_window;
    QPointer<QWidget> m_target;
    bool m_keyboardMoves = false;
};

} // namespace quorvane
