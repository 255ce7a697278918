// SPDX-License-Identifier: MIT
#pragma once

#include <controls/LineEdit.h>

namespace quorvane {

/// A framed field for two large digits; a longer text is shown smaller. It takes any text up to ten
/// thousand characters and refuses a longer one whole; getting the focus selects it.
class NumberField final : public LineEdit {
    Q_OBJECT

public:
    NumberField(const QString& placeholder, PasteReader reader, QWidget* parent);

    /// Shows a text that nobody typed.
    void showText(const QString& text);

Q_SIGNALS:
    void entered();

    /// The focus has gone to something else in its window.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void followPalette();
    void hideCaretInSelection();
    void fitText();

    bool m_focusedByPress = false;
};

} // namespace quorvane
