// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>
#include <controls/SymbolIcon.h>
#include <controls/SymbolPainter.h>
#include <controls/Theme.h>
#include <support/GalleryFolder.h>

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array barSizes{16, 22, 24, 32, 48};
constexpr std::array schemes{ColorScheme::Light, ColorScheme::Dark};

QIcon icon(ColorScheme scheme) {
    return symbolIcon(Symbol::CalendarBadgeClock, SymbolColors::of(builtInPalette(scheme)));
}

QImage shown(const QIcon& icon, int size, const QColor& bar) {
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(bar);
    QPainter painter(&image);
    icon.paint(&painter, image.rect());
    return image;
}

/// The share of the pixels that one can tell from the bar (WCAG 2.1, 1.4.11).
double visibleShare(const QImage& image, const QColor& bar) {
    int visible = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            visible += contrastRatio(image.pixelColor(x, y), bar) >= 3 ? 1 : 0;
    return static_cast<double>(visible) / (image.width() * image.height());
}

TEST(SymbolIcon, IsReadOnBarsOfEitherToneWhateverTheDesktopsIs) {
    for (const auto scheme : schemes) {
        for (const auto bar : {u"#ffffff", u"#f6f6f8", u"#1d1e21", u"#000000"}) {
            for (const int size : barSizes) {
                const QColor background{QString::fromUtf16(bar)};
                EXPECT_GT(visibleShare(shown(icon(scheme), size, background), background), 0.1)
                    << background.name().toStdString() << ' ' << size;
            }
        }
    }
}

TEST(SymbolIcon, OnABarOfTheDesktopsToneOnlyTheSymbolIsSeen) {
    for (const auto scheme : schemes) {
        const auto colors = SymbolColors::of(builtInPalette(scheme));
        for (const int size : barSizes) {
            QImage plain(size, size, QImage::Format_RGB32);
            plain.fill(colors.halo);
            QPainter painter(&plain);
            paintSymbol(
                painter,
                Symbol::CalendarBadgeClock,
                {static_cast<double>(size)},
                plain.rect(),
                colors.color);
            painter.end();
            EXPECT_EQ(shown(icon(scheme), size, colors.halo), plain) << size;
        }
    }
}

TEST(SymbolIcon, SymbolIsInThePalettesTextColorAndTheHaloItsOpposite) {
    const auto light = SymbolColors::of(builtInPalette(ColorScheme::Light));
    EXPECT_EQ(light.color, Theme::builtIn(ColorScheme::Light).text);
    EXPECT_EQ(light.halo, QColor(Qt::white));
    const auto dark = SymbolColors::of(builtInPalette(ColorScheme::Dark));
    EXPECT_EQ(dark.color, Theme::builtIn(ColorScheme::Dark).text);
    EXPECT_EQ(dark.halo, QColor(Qt::black));
}

TEST(SymbolIcon, IsDrawnForTheDevicesPixels) {
    const auto tray = icon(ColorScheme::Light);
    for (const int size : barSizes) {
        const auto twice = tray.pixmap(QSize(size, size), 2.0);
        EXPECT_EQ(twice.size(), QSize(2 * size, 2 * size));
        const auto once = tray.pixmap(QSize(2 * size, 2 * size), 1.0);
        EXPECT_EQ(twice.toImage().convertToFormat(once.toImage().format()), once.toImage());
    }
}

TEST(SymbolIcon, OffersTheSizesThatBarsAskFor) {
    EXPECT_EQ(
        icon(ColorScheme::Dark).availableSizes(),
        (QList<QSize>{{16, 16}, {22, 22}, {24, 24}, {32, 32}, {48, 48}}));
    EXPECT_FALSE(icon(ColorScheme::Dark).isNull());
}

/// For people: each size on each bar, symbols of the bar's tone above, of the other one below.
TEST(SymbolIcon, Board) {
    const std::array bars{u"#ffffff"_s, u"#f6f6f8"_s, u"#8a8f98"_s, u"#3b6ea5"_s, u"#1d1e21"_s};
    constexpr QSize cell(220, 64);
    constexpr int gap = 12;
    QImage board(
        cell.width() * static_cast<int>(bars.size()), 2 * cell.height(), QImage::Format_RGB32);
    QPainter painter(&board);
    for (std::size_t column = 0; column < bars.size(); ++column) {
        for (int row = 0; row < 2; ++row) {
            const QRect place(
                QPoint(static_cast<int>(column) * cell.width(), row * cell.height()), cell);
            painter.fillRect(place, QColor(bars[column]));
            int x = place.x() + gap;
            for (const int size : barSizes) {
                icon(schemes[static_cast<std::size_t>(row)])
                    .paint(&painter, QRect(x, place.center().y() - size / 2, size, size));
                x += size + gap;
            }
        }
    }
    painter.end();
    EXPECT_TRUE(board.save(galleryFile(u"tray"_s)));
}

} // namespace
} // namespace quorvane
