// SPDX-License-Identifier: MIT
#include "NumberField.h"

#include "EntryKeys.h"
#include "NumberFieldAccessible.h"

#include <controls/ColorContrast.h>
#include <controls/DevicePixels.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <time/TypedText.h>

#include <QAccessible>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QValidator>

#include <limits>
#include <utility>

namespace quorvane {

namespace {

constexpr QSize fieldSize(52, 48);
constexpr double cornerRadius = 8;
constexpr int digitPixels = 28;
constexpr int longTextPixels = 17;
constexpr int textRoom = 44;
constexpr double selectionOpacity = 0.24;
constexpr int caretRoom = 1; ///< which QLineEdit keeps behind the text that it centres
constexpr qsizetype longestText = 10'000;

/// Refuses a paste that would take seconds to lay out, and refuses it whole: the start of a text is
/// another text, which might be a number.
class LengthValidator final : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int& /*cursor*/) const override {
        return text.size() <= longestText ? Acceptable : Invalid;
    }
};

} // namespace

NumberField::NumberField(
    const QString& placeholder, Range range, PasteReader reader, QWidget* parent)
    : LineEdit(std::move(reader), parent),
      m_range(range) {
    NumberFieldAccessible::install();
    setFrame(false);
    setFixedSize(fieldSize);
    setAlignment(Qt::AlignCenter);
    setMaxLength(std::numeric_limits<int>::max());
    setValidator(new LengthValidator(this));
    setPlaceholderText(placeholder);
    setFont(fixedSizeFont(font(), digitPixels, QFont::Light));
    setTextMargins(caretRoom, 0, 0, 0);
    connect(this, &NumberField::textChanged, this, &NumberField::fitText);
    connect(this, &NumberField::selectionChanged, this, &NumberField::hideCaretInSelection);
    followPalette();
}

std::optional<int> NumberField::number() const {
    bool isNumber = false;
    const int number = withAsciiDigits(text()).toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

QRect NumberField::placeOfLetter(int index) const {
    if (index < 0 || index >= text().size())
        return {};
    const auto metrics = fontMetrics();
    const int start = (width() - metrics.horizontalAdvance(text())) / 2;
    const int left = metrics.horizontalAdvance(text().first(index));
    const int right = metrics.horizontalAdvance(text().first(index + 1));
    return {start + left, (height() - metrics.height()) / 2, right - left, metrics.height()};
}

void NumberField::showText(const QString& text) {
    setText(text);
    // Also while signals are blocked.
    fitText();
}

void NumberField::stepTo(const QString& text) {
    setText(text);
    if (hasFocus())
        selectAll();
    QAccessibleValueChangeEvent event(this, number().value_or(m_range.least));
    QAccessible::updateAccessibility(&event);
}

void NumberField::keyPressEvent(QKeyEvent* event) {
    const auto key = meaningOf(*event);
    if (key == Qt::Key_Return && event->key() != key)
        Q_EMIT returnPressed();
    else
        LineEdit::keyPressEvent(event);
}

void NumberField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        const auto theme = Theme::of(parentWidget()->palette());
        fillRounded(painter, rect(), cornerRadius, theme.controlBackground);
        const bool isStrong = hasFocus() || isRefused();
        const auto& color = hasFocus() ? theme.accentText : theme.border;
        frameRounded(
            painter, rect(), cornerRadius, isRefused() ? theme.danger : color, isStrong ? 2 : 1);
    }
    LineEdit::paintEvent(event);
}

void NumberField::focusInEvent(QFocusEvent* event) {
    LineEdit::focusInEvent(event);
    m_focusedByPress = event->reason() == Qt::MouseFocusReason;
    selectAll();
    Q_EMIT entered();
}

void NumberField::focusOutEvent(QFocusEvent* event) {
    LineEdit::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        Q_EMIT left();
}

void NumberField::mouseReleaseEvent(QMouseEvent* event) {
    LineEdit::mouseReleaseEvent(event);
    // The press that gave the focus has put the cursor between the digits.
    if (std::exchange(m_focusedByPress, false) && !hasSelectedText())
        selectAll();
}

void NumberField::changeEvent(QEvent* event) {
    LineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        followPalette();
}

void NumberField::hideCaretInSelection() {
    // What is selected is replaced as a whole: a caret behind it would say that one types there.
    // This is how an input method asks for no caret, or for one again; it changes nothing else.
    const int width = hasSelectedText() ? 0 : 1;
    QInputMethodEvent event({}, {{QInputMethodEvent::Cursor, 0, width, {}}});
    LineEdit::inputMethodEvent(&event);
}

void NumberField::fitText() {
    const auto large = fixedSizeFont(font(), digitPixels, QFont::Light);
    const bool fits = QFontMetrics(large).horizontalAdvance(text()) <= textRoom;
    setFont(fits ? large : fixedSizeFont(font(), longTextPixels, QFont::Normal));
}

void NumberField::followPalette() {
    const auto theme = Theme::of(parentWidget()->palette());
    auto own = palette();
    own.setColor(QPalette::Base, Qt::transparent);
    own.setColor(QPalette::Text, theme.text);
    own.setColor(QPalette::PlaceholderText, theme.secondaryText);
    own.setColor(QPalette::Highlight, withOpacity(theme.accentText, selectionOpacity));
    own.setColor(QPalette::HighlightedText, theme.text);
    if (own != palette())
        setPalette(own);
}

} // namespace quorvane
