// SPDX-License-Identifier: MIT
#pragma once

#include <controls/InputDevice.h>

#include <QPointer>
#include <QWidget>

namespace quorvane {

/// Draws the ring around whatever has the keyboard's focus in its window, above everything else,
/// so that focus takes no room and moves nothing. It shows while the keyboard is what moves the
/// focus: from the first key that moves about or presses something, until a click takes the focus
/// elsewhere. A window that was opened by keyboard shows it at once.
class FocusRing final : public QWidget {
    Q_OBJECT

public:
    /// For the window (or popover) that it becomes a child of.
    explicit FocusRing(QWidget* window);

    /// The ring of that window; null for a window that has none.
    [[nodiscard]] static FocusRing* of(const QWidget& window);

    /// What the user has worked with last in that window; the pointer for a window without a ring.
    [[nodiscard]] static InputDevice lastInput(const QWidget& window);

    /// Says what the window is opened with, or come back to: called before it gets the focus.
    void setLastInput(InputDevice device);

    /// Shows the ring around `target`, which must be FocusShaped; null hides it.
    void surround(QWidget* target);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void noteInput(const QEvent& event);
    void noteFocus(QWidget* widget, Qt::FocusReason reason);
    void surroundFocused();
    void follow();

    QWidget* m_window;
    QPointer<QWidget> m_target;
    InputDevice m_lastInput = InputDevice::Pointer;
    bool m_keyboardMoves = false;
};

} // namespace quorvane
