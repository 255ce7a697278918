// SPDX-License-Identifier: MIT
#include <controls/SymbolPainter.h>

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>

namespace quorvane {
namespace {

QImage painted(Symbol symbol, SymbolStyle style, double scale, const QColor& color) {
    const int pixels = static_cast<int>(std::ceil(style.size * scale));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintSymbol(painter, symbol, style, QRectF(0, 0, style.size, style.size), color);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

struct Coverage {
    int pixels = 0;   ///< that are clearly there
    QRgb densest = 0; ///< the one that shows the colour purest
};

Coverage coverageOf(const QImage& image) {
    Coverage coverage;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            coverage.pixels += qAlpha(pixel) > 64 ? 1 : 0;
            if (qAlpha(pixel) > qAlpha(coverage.densest))
                coverage.densest = pixel;
        }
    }
    return coverage;
}

bool isOfColor(QRgb pixel, const QColor& color) {
    constexpr int rounding = 3;
    return std::abs(qRed(pixel) - color.red()) <= rounding &&
           std::abs(qGreen(pixel) - color.green()) <= rounding &&
           std::abs(qBlue(pixel) - color.blue()) <= rounding;
}

TEST(SymbolPainter, EverySymbolIsDrawnAtEverySizeInTheColorAskedFor) {
    const QColor color(0xc0, 0x30, 0x80);
    for (const auto symbol : allSymbols) {
        for (int size = 9; size <= 24; ++size) {
            for (const double scale : {1.0, 1.25, 2.0}) {
                const SymbolStyle style{static_cast<double>(size), SymbolStyle::regular};
                const auto coverage = coverageOf(painted(symbol, style, scale, color));
                const auto label = symbolName(symbol);
                EXPECT_GE(coverage.pixels, size / 2) << label.data() << ' ' << size << ' ' << scale;
                EXPECT_GT(qAlpha(coverage.densest), 90)
                    << label.data() << ' ' << size << ' ' << scale;
                EXPECT_TRUE(isOfColor(coverage.densest, color))
                    << label.data() << " " << size << " " << scale << " " << std::hex
                    << coverage.densest;
            }
        }
    }
}

TEST(SymbolPainter, HeavierWeightCoversMore) {
    for (const auto symbol : {Symbol::Plus, Symbol::Xmark, Symbol::ChevronDown}) {
        const auto coverage = [&](double weight) {
            const auto image = painted(symbol, {16, weight}, 2, Qt::black);
            double sum = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    sum += qAlpha(image.pixel(x, y));
            return sum;
        };
        EXPECT_GT(coverage(SymbolStyle::semibold), coverage(SymbolStyle::regular));
        EXPECT_GT(coverage(SymbolStyle::bold), coverage(SymbolStyle::semibold));
    }
}

TEST(SymbolPainter, TranslucentColorShowsThrough) {
    const auto coverage = coverageOf(painted(Symbol::StarFill, {24}, 2, QColor(0, 0, 0, 128)));
    EXPECT_NEAR(qAlpha(coverage.densest), 128, 2);
}

TEST(SymbolPainter, ColorsOfOneSymbolDoNotMix) {
    const auto red = coverageOf(painted(Symbol::StarFill, {16}, 1, Qt::red));
    const auto blue = coverageOf(painted(Symbol::StarFill, {16}, 1, Qt::blue));
    EXPECT_TRUE(isOfColor(red.densest, Qt::red));
    EXPECT_TRUE(isOfColor(blue.densest, Qt::blue));
}

TEST(SymbolPainter, NamesAreThoseOfTheDrawings) {
    EXPECT_EQ(symbolName(Symbol::CalendarBadgeClock), QLatin1StringView("calendar.badge.clock"));
    EXPECT_EQ(symbolName(Symbol::Xmark), QLatin1StringView("xmark"));
}

} // namespace
} // namespace quorvane
