// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/MenuRow.h>
#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>

#include <QPainter>
#include <QStyle>

#include <cmath>

namespace quorvane {

namespace {

constexpr int horizontalPadding = 12;
constexpr int slotWidth = 12;
constexpr int slotGap = 8;
constexpr int titleStart = horizontalPadding + slotWidth + slotGap;
constexpr int fillInset = 4;
constexpr double fillRadius = 6;
constexpr SymbolStyle markStyle{12, SymbolStyle::semibold};

} // namespace

MenuRow::MenuRow(const QString& title, bool isChosen, QWidget* parent) : PressableControl(parent) {
    setText(title);
    setCheckable(true);
    setChecked(isChosen);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize MenuRow::sizeHint() const {
    const QFontMetricsF metrics(textFont(font(), TextStyle::Callout));
    const auto title = static_cast<int>(std::ceil(metrics.horizontalAdvance(text())));
    return {titleStart + title + horizontalPadding, height};
}

double MenuRow::cornerRadius() const {
    return fillRadius;
}

void MenuRow::paintControl(QPainter& painter, const Theme& theme) {
    if (hasFocus() || isDown()) {
        const QRectF fill = QRectF(rect()).adjusted(fillInset, 0, -fillInset, 0);
        fillRounded(painter, fill, fillRadius, isDown() ? theme.press : theme.hover);
    }
    const auto placed = [this](const QRect& place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    if (isChecked())
        paintSymbol(
            painter,
            Symbol::Checkmark,
            markStyle,
            placed({horizontalPadding, 0, slotWidth, height}),
            theme.accentText);
    painter.setFont(textFont(font(), TextStyle::Callout));
    painter.setPen(theme.text);
    painter.drawText(
        placed(rect().adjusted(titleStart, 0, -horizontalPadding, 0)),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
            Qt::AlignVCenter | Qt::TextSingleLine,
        text());
}

void MenuRow::enterEvent(QEnterEvent* event) {
    PressableControl::enterEvent(event);
    setFocus(Qt::MouseFocusReason);
}

} // namespace quorvane
