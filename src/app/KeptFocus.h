// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace quorvane {

/// Gives the focus within a window back, when the window shows again, to who had it when it was
/// hidden. Qt moves it on to the next widget if the desktop gives a window the keyboard just as it
/// is being hidden: none of its widgets is visible then. A widget that is gone, hidden or disabled
/// by now gets nothing.
class KeptFocus final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the window.
    explicit KeptFocus(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void giveBack();

    QWidget* m_window;
    QPointer<QWidget> m_focused;
};

} // namespace quorvane
