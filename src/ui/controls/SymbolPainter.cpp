// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/SymbolPainter.h>

#include <QFile>
#include <QFontInfo>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QByteArray drawing(Symbol symbol, double strokeWidth, const QColor& color) {
    QFile file(u":/symbols/%1.svg"_s.arg(symbolName(symbol)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    auto text = file.readAll();
    text.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
    // The root's own width comes first; what a part of the drawing sets for itself stays.
    const auto attribute = QByteArrayLiteral("stroke-width=\"");
    const auto start = text.indexOf(attribute) + attribute.size();
    const auto end = text.indexOf('"', start);
    return text.replace(start, end - start, QByteArray::number(strokeWidth));
}

QPixmap rendered(Symbol symbol, double strokeWidth, const QColor& color, QSize pixels) {
    QPixmap pixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer renderer(drawing(symbol, strokeWidth, color));
    renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    return pixmap;
}

QPixmap cached(Symbol symbol, double strokeWidth, const QColor& color, QSize pixels) {
    const auto key = u"symbol %1 %2 %3 %4"_s.arg(symbolName(symbol))
                         .arg(strokeWidth)
                         .arg(color.name(QColor::HexRgb))
                         .arg(pixels.width());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = rendered(symbol, strokeWidth, color, pixels);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace

int besideText(const QFont& body, double points) {
    constexpr double usualBody = 13;
    constexpr double leastScale = 0.75;
    constexpr double leastDifference = 0.1;
    const double scale = std::max(QFontInfo(body).pixelSize() / usualBody, leastScale);
    return std::abs(scale - 1) < leastDifference ? qRound(points) : qRound(points * scale);
}

SymbolStyle besideText(const QFont& body, SymbolStyle style) {
    return {static_cast<double>(besideText(body, style.size)), style.strokeWidth};
}

void paintSymbol(
    QPainter& painter, Symbol symbol, SymbolStyle style, const QRectF& rect, const QColor& color) {
    QRectF place(0, 0, style.size, style.size);
    place.moveCenter(rect.center());
    const double scale = painter.deviceTransform().m11();
    const int pixels = qRound(style.size * scale);
    place = QRectF(snapped(painter, place).topLeft(), QSizeF(pixels, pixels) / scale);
    auto pixmap = cached(symbol, style.strokeWidth, color, {pixels, pixels});
    pixmap.setDevicePixelRatio(scale);
    const double opacity = painter.opacity();
    painter.setOpacity(opacity * color.alphaF());
    painter.drawPixmap(place.topLeft(), pixmap);
    painter.setOpacity(opacity);
}

} // namespace quorvane
