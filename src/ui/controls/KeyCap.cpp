// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/KeyCap.h>
#include <controls/SymbolPainter.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>

namespace quorvane {

namespace {

constexpr int usualCapSize = 22;
constexpr int horizontalPadding = 5;
constexpr double cornerRadius = 5;
constexpr double edgeWidth = 0.5;
constexpr int fontSize = 12;

QFont capFont(const QFont& font) {
    return fixedSizeFont(font, besideText(font, fontSize), QFont::DemiBold);
}

/// Letters stand on the line; whatever is no letter ("…", "-") has no line to stand on.
bool standsOnLine(const QString& label) {
    return label.front().isLetterOrNumber();
}

/// The angle of an arrow key's label to an arrow that points to the left; none of other labels.
std::optional<int> arrowAngle(const QString& label) {
    constexpr QStringView clockwise = u"←↑→↓";
    const auto index = label.size() == 1 ? clockwise.indexOf(label.front()) : -1;
    return index < 0 ? std::nullopt : std::optional(static_cast<int>(index) * 90);
}

/// An arrow key's label as a drawing: in many fonts the arrow is missing, or of another weight than
/// the letters beside it.
void paintArrow(QPainter& painter, QPointF center, int angle, const QColor& color) {
    constexpr double reach = 4.5;
    constexpr double head = 3.25;
    constexpr double penWidth = 1.5;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(center);
    painter.rotate(angle);
    painter.drawLine(QPointF(-reach, 0), QPointF(reach, 0));
    painter.drawPolyline(QPolygonF{{head - reach, -head}, {-reach, 0.0}, {head - reach, head}});
    painter.restore();
}

/// Where a label starts: all letters of a row on one line, capitals in the middle of the cap.
QPointF textOrigin(const QPainter& painter, const QRectF& cap, const QString& label) {
    const auto& font = painter.font();
    if (!standsOnLine(label))
        return cap.center() - foregroundOf(label, font).center();
    const QFontMetricsF metrics(font);
    const double ratio = painter.device()->devicePixelRatioF();
    const double baseline = cap.center().y() + metrics.capHeight() / 2;
    return {
        cap.center().x() - metrics.horizontalAdvance(label) / 2,
        std::round(baseline * ratio) / ratio};
}

} // namespace

KeyCap::KeyCap(const QString& label, QWidget* parent) : QLabel(label, parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize KeyCap::sizeHint() const {
    const QFontMetricsF metrics(capFont(font()));
    const auto label = static_cast<int>(std::ceil(metrics.horizontalAdvance(text())));
    const int size = besideText(font(), usualCapSize);
    return {std::max(size, label + 2 * horizontalPadding), size};
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
    if (const auto angle = arrowAngle(text())) {
        paintArrow(painter, QRectF(rect()).center(), *angle, theme.secondaryText);
        return;
    }
    painter.setFont(capFont(font()));
    painter.setPen(theme.secondaryText);
    painter.drawText(textOrigin(painter, rect(), text()), text());
}

} // namespace quorvane
