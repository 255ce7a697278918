// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/SymbolPainter.h>

#include <QFile>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

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

QImage rendered(Symbol symbol, double strokeWidth, const QColor& color, int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer renderer(drawing(symbol, strokeWidth, color));
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    return image;
}

/// Qt's own cache of pictures wakes the program half a minute later, to forget them: the next
/// showing would draw them all once more.
QImage cached(Symbol symbol, double strokeWidth, const QColor& color, int pixels) {
    // Some five times what all windows show in one palette; a symbol has 2 kilobytes.
    constexpr std::size_t mostKept = 500;
    static std::map<std::tuple<Symbol, double, QRgb, int>, QImage> kept;
    if (kept.size() >= mostKept)
        kept.clear();
    auto& image = kept[{symbol, strokeWidth, color.rgb(), pixels}];
    if (image.isNull())
        image = rendered(symbol, strokeWidth, color, pixels);
    return image;
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
    auto image = cached(symbol, style.strokeWidth, color, pixels);
    image.setDevicePixelRatio(scale);
    const double opacity = painter.opacity();
    painter.setOpacity(opacity * color.alphaF());
    painter.drawImage(place.topLeft(), image);
    painter.setOpacity(opacity);
}

} // namespace quorvane
