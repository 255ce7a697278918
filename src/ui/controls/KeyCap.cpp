// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/KeyCap.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

constexpr int capSize = 22;
constexpr int horizontalPadding = 4;
constexpr double cornerRadius = 5;
constexpr double edgeWidth = 0.5;
constexpr int fontSize = 12;

QFont capFont(const QFont& font) {
    return fixedSizeFont(font, fontSize, QFont::DemiBold);
}

/// Letters stand on the line; whatever is no letter (arrows, "…") has no line to stand on.
bool standsOnLine(const QString& label) {
    return label.front().isLetterOrNumber();
}

} // namespace

KeyCap::KeyCap(const QString& label, QWidget* parent) : QLabel(label, parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize KeyCap::sizeHint() const {
    const QFontMetricsF metrics(capFont(font()));
    const auto label = static_cast<int>(std::ceil(metrics.horizontalAdvance(text())));
    return {std::max(capSize, label + 2 * horizontalPadding), capSize};
}

void KeyCap::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    const double edge = snappedLine(painter, edgeWidth);
    // The shadow is one line below the cap, inside the widget.
    const QRectF cap = QRectF(rect()).adjusted(0, 0, 0, -edge);
    fillRounded(painter, cap.translated(0, edge), cornerRadius, theme.keyCapShadow);
    fillRounded(painter, cap, cornerRadius, theme.controlBackground);
    frameRounded(painter, cap, cornerRadius, theme.keyCapBorder, edgeWidth);
    painter.fillRect(
        QRectF(cornerRadius, 0, width() - 2 * cornerRadius, edge), theme.keyCapHighlight);
    if (text().isEmpty())
        return;
    const auto font = capFont(this->font());
    painter.setFont(font);
    painter.setPen(theme.secondaryText);
    if (standsOnLine(text())) {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
        return;
    }
    painter.drawText(QRectF(rect()).center() - foregroundOf(text(), font).center(), text());
}

} // namespace quorvane
