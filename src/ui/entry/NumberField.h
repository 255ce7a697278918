// SPDX-License-Identifier: MIT
#pragma once

#include <controls/LineEdit.h>

namespace quorvane {

/// A framed field for two large digits. It takes any text up to ten thousand characters and refuses
/// a longer one whole; getting the focus selects it.
class NumberField final : public LineEdit {
    Q_OBJECT

public:
    NumberField(const QString& placeholder, PasteReader reader, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void followPalette();
    void hideCaretInSelection();

    bool m_focusedByPress = false;
};

} // namespace quorvane
