// SPDX-License-Identifier: MIT
#pragma once

#include <controls/LineEdit.h>

#include <optional>

namespace quorvane {

/// A framed field for two large digits; a longer text is shown smaller. It takes any text up to ten
/// thousand characters and refuses a longer one whole; getting the focus selects it.
class NumberField final : public LineEdit {
    Q_OBJECT

public:
    /// The numbers that it is meant for; it takes other texts as well.
    struct Range {
        int least = 0;
        int greatest = 0;
    };

    NumberField(const QString& placeholder, Range range, PasteReader reader, QWidget* parent);

    [[nodiscard]] Range range() const { return m_range; }

    /// None while the text is no number.
    [[nodiscard]] std::optional<int> number() const;

    /// Where a letter of the text stands; empty for one that it does not have.
    [[nodiscard]] QRect placeOfLetter(int index) const;

    /// Shows a text that nobody typed.
    void showText(const QString& text);

    /// Sets the text to the next number, or the one before, as if it had been typed.
    void stepTo(const QString& text);

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

    Range m_range;
    bool m_focusedByPress = false;
};

} // namespace quorvane
