// SPDX-License-Identifier: MIT
#include <support/ControlWindow.h>
#include <support/SymbolSearch.h>

#include <QPainter>

#include <cmath>
#include <cstdlib>

namespace quorvane {

namespace {

constexpr int tolerance = 8;

/// The symbol on nothing.
QImage drawn(const ExpectedSymbol& expected) {
    const int size = static_cast<int>(std::ceil(expected.style.size));
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintSymbol(painter, expected.symbol, expected.style, image.rect(), expected.color);
    return image;
}

/// One channel of a colour that is laid over another.
int laidOver(int background, int foreground, int alpha) {
    return background + (foreground - background) * alpha / 255;
}

bool isNear(int value, int expected) {
    return std::abs(value - expected) <= tolerance;
}

/// A point of the symbol that covers what is below: looked at first, as it is hardly ever there.
QPoint coveringPoint(const QImage& symbol) {
    for (int y = 0; y < symbol.height(); ++y) {
        for (int x = 0; x < symbol.width(); ++x) {
            if (qAlpha(symbol.pixel(x, y)) > 200)
                return {x, y};
        }
    }
    return {};
}

bool isNear(QRgb value, QRgb expected, int distance) {
    return std::abs(qRed(value) - qRed(expected)) <= distance &&
           std::abs(qGreen(value) - qGreen(expected)) <= distance &&
           std::abs(qBlue(value) - qBlue(expected)) <= distance;
}

bool showsAt(const QImage& picture, QPoint corner, const QImage& symbol) {
    const QRgb background = picture.pixel(corner);
    for (int y = 0; y < symbol.height(); ++y) {
        for (int x = 0; x < symbol.width(); ++x) {
            const QRgb above = symbol.pixel(x, y);
            const QRgb seen = picture.pixel(corner + QPoint(x, y));
            const int alpha = qAlpha(above);
            if (!isNear(qRed(seen), laidOver(qRed(background), qRed(above), alpha)) ||
                !isNear(qGreen(seen), laidOver(qGreen(background), qGreen(above), alpha)) ||
                !isNear(qBlue(seen), laidOver(qBlue(background), qBlue(above), alpha)))
                return false;
        }
    }
    return true;
}

} // namespace

std::optional<QRect> placeOf(const ExpectedSymbol& expected, const QImage& picture) {
    constexpr int coarse = 60;
    const auto symbol = drawn(expected);
    const auto covering = coveringPoint(symbol);
    for (int y = 0; y + symbol.height() <= picture.height(); ++y) {
        for (int x = 0; x + symbol.width() <= picture.width(); ++x) {
            const QRgb seen = picture.pixel(QPoint(x, y) + covering);
            if (isNear(seen, expected.color.rgb(), coarse) && showsAt(picture, {x, y}, symbol))
                return QRect(QPoint(x, y), symbol.size());
        }
    }
    return std::nullopt;
}

std::optional<QRect> placeOf(const ExpectedSymbol& expected, QWidget& widget) {
    return placeOf(expected, picture(widget));
}

} // namespace quorvane
