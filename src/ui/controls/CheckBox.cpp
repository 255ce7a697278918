// SPDX-License-Identifier: MIT
#include <controls/CheckBox.h>
#include <controls/DevicePixels.h>
#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>

#include <QPainter>
#include <QStyle>

#include <cmath>

namespace quorvane {

namespace {

constexpr int usualBoxSize = 16;
constexpr int labelGap = 8;
constexpr int rowHeight = 24;
constexpr double boxRadius = 4.5;
constexpr SymbolStyle markStyle{10, 2.5};

} // namespace

CheckBox::CheckBox(const QString& label, QWidget* parent) : PressableControl(parent) {
    setText(label);
    setCheckable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize CheckBox::sizeHint() const {
    if (text().isEmpty())
        return {rowHeight, rowHeight};
    const QFontMetricsF metrics(textFont(font(), TextStyle::Body));
    const auto label = static_cast<int>(std::ceil(metrics.horizontalAdvance(text())));
    return {boxSize() + labelGap + label, std::max(rowHeight, qRound(metrics.height()))};
}

FocusOutline CheckBox::focusOutline() const {
    return {box(), boxRadius};
}

double CheckBox::cornerRadius() const {
    return boxRadius;
}

double CheckBox::disabledOpacity() const {
    return 0.45;
}

void CheckBox::paintControl(QPainter& painter, const Theme& theme) {
    paintBox(painter, theme);
    const QRect label = rect().adjusted(boxSize() + labelGap, 0, 0, 0);
    painter.setFont(textFont(font(), TextStyle::Body));
    painter.setPen(theme.text);
    painter.drawText(
        QStyle::visualRect(layoutDirection(), rect(), label),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
            Qt::AlignVCenter | Qt::TextSingleLine,
        text());
}

int CheckBox::boxSize() const {
    return besideText(font(), usualBoxSize);
}

QRectF CheckBox::box() const {
    const int size = boxSize();
    const int inset = text().isEmpty() ? (width() - size) / 2 : 0;
    const QRect place(inset, (height() - size) / 2, size, size);
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

void CheckBox::paintBox(QPainter& painter, const Theme& theme) const {
    if (!isChecked()) {
        paintEmptyBox(painter, theme);
        return;
    }
    fillRounded(painter, box(), boxRadius, accentFill(visualState(), theme));
    paintSymbol(painter, Symbol::Checkmark, besideText(font(), markStyle), box(), theme.onAccent);
}

void CheckBox::paintEmptyBox(QPainter& painter, const Theme& theme) const {
    fillRounded(painter, box(), boxRadius, theme.controlBackground);
    if (visualState() == VisualState::Pressed)
        fillRounded(painter, box(), boxRadius, theme.pressOverlay);
    frameRounded(
        painter,
        box(),
        boxRadius,
        visualState() == VisualState::Hover ? theme.secondaryText : theme.checkBoxBorder,
        1);
}

} // namespace quorvane
