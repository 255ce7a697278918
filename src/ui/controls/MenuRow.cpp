// SPDX-License-Identifier: MIT
#include "MenuRow.h"

#include <controls/DevicePixels.h>
#include <controls/TextStyle.h>

#include <QPainter>
#include <QStyle>

#include <cmath>

namespace quorvane {

namespace {

constexpr int fillInset = 4;
constexpr double fillRadius = 6;

} // namespace

MenuRow::MenuRow(const QString& title, QWidget* parent) : PressableControl(parent) {
    setText(title);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

double MenuRow::cornerRadius() const {
    return fillRadius;
}

void MenuRow::paintControl(QPainter& painter, const Theme& theme) {
    if (hasFocus() || isDown()) {
        const QRectF fill = QRectF(rect()).adjusted(fillInset, 0, -fillInset, 0);
        fillRounded(painter, fill, fillRadius, isDown() ? theme.pressOverlay : theme.hoverOverlay);
    }
    paintContent(painter, theme);
}

void MenuRow::enterEvent(QEnterEvent* event) {
    PressableControl::enterEvent(event);
    setFocus(Qt::MouseFocusReason);
}

QFont MenuRow::titleFont() const {
    return textFont(font(), TextStyle::Callout);
}

int MenuRow::titleWidth() const {
    return static_cast<int>(std::ceil(QFontMetricsF(titleFont()).horizontalAdvance(text())));
}

void MenuRow::paintTitle(QPainter& painter, const Theme& theme, const QRect& place) const {
    painter.setFont(titleFont());
    painter.setPen(theme.text);
    painter.drawText(
        placed(place),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
            Qt::AlignVCenter | Qt::TextSingleLine,
        text());
}

QRect MenuRow::placed(const QRect& place) const {
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

} // namespace quorvane
