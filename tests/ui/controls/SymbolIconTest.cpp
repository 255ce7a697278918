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
#include <map>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array barSizes{16, 22, 24, 32, 48};
/// How large the drawing, which fills its grid, is in an icon: as its neighbours' are in their
/// bars.
const std::map<int, double> drawingSizes{{16, 16}, {22, 16}, {24, 16}, {32, 24}, {48, 36}};
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

/// The share of the pixels that one can tell from the bar. Less than the 3:1 of WCAG 2.1, 1.4.11:
/// it is for bars of which nothing is known, where a stronger halo is ugly on all others.
double visibleShare(const QImage& image, const QColor& bar) {
    int visible = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            visible += contrastRatio(image.pixelColor(x, y), bar) >= 1.8 ? 1 : 0;
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
            const QColor bar(colors.halo.rgb());
            QImage plain(size, size, QImage::Format_RGB32);
            plain.fill(bar);
            QPainter painter(&plain);
            paintSymbol(
                painter,
                Symbol::CalendarBadgeClock,
                {drawingSizes.at(size)},
                plain.rect(),
                colors.color);
            painter.end();
            EXPECT_EQ(shown(icon(scheme), size, bar), plain) << size;
        }
    }
}

TEST(SymbolIcon, SymbolIsInThePalettesTextColorAndTheHaloItsOpposite) {
    const auto light = SymbolColors::of(builtInPalette(ColorScheme::Light));
    EXPECT_EQ(light.color, Theme::builtIn(ColorScheme::Light).text);
    EXPECT_EQ(light.halo.rgba(), qRgba(255, 255, 255, 128));
    const auto dark = SymbolColors::of(builtInPalette(ColorScheme::Dark));
    EXPECT_EQ(dark.color, Theme::builtIn(ColorScheme::Dark).text);
    EXPECT_EQ(dark.halo.rgba(), qRgba(0, 0, 0, 128));
}

TEST(SymbolIcon, IsDrawnForTheDevicesPixels) {
    for (const int size : barSizes) {
        const auto twice = symbolIcon(Symbol::CalendarBadgeClock, {Qt::black})
                               .pixmap(QSize(size, size), 2.0)
                               .toImage();
        ASSERT_EQ(twice.size(), QSize(2 * size, 2 * size));
        QImage drawn(twice.size(), twice.format());
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        const double pixels = 2 * drawingSizes.at(size);
        paintSymbol(painter, Symbol::CalendarBadgeClock, {pixels}, drawn.rect(), Qt::black);
        painter.end();
        drawn.setDevicePixelRatio(2);
        EXPECT_EQ(twice, drawn) << size;
    }
}

TEST(SymbolIcon, OffersTheSizesThatBarsAskFor) {
    EXPECT_EQ(
        icon(ColorScheme::Dark).availableSizes(),
        (QList<QSize>{{16, 16}, {22, 22}, {24, 24}, {32, 32}, {48, 48}}));
    EXPECT_FALSE(icon(ColorScheme::Dark).isNull());
}

TEST(SymbolIcon, IsAsLargeAsItsNeighbours) {
    for (const auto& [size, drawn] : drawingSizes) {
        const auto image =
            shown(symbolIcon(Symbol::CalendarBadgeClock, {Qt::black}), size, Qt::white);
        int first = size;
        int last = -1;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                if (qGray(image.pixel(x, y)) < 192) {
                    first = std::min(first, y);
                    last = std::max(last, y);
                }
            }
        }
        EXPECT_NEAR(last - first + 1, drawn, 1) << size;
    }
}

TEST(SymbolIcon, WhoKnowsTheBarSeesNoHalo) {
    const auto image = symbolIcon(Symbol::CalendarBadgeClock, {Qt::red}).pixmap(22).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const auto color = image.pixelColor(x, y);
            EXPECT_TRUE(color.alpha() == 0 || (color.green() == 0 && color.blue() == 0));
        }
    }
}

TEST(SymbolIcon, NamesTheSymbolOfIconThemes) {
    EXPECT_EQ(symbolIcon(Symbol::Clock, {Qt::red}, u"some-symbolic"_s).name(), u"some-symbolic"_s);
    EXPECT_EQ(symbolIcon(Symbol::Clock, {Qt::red}).name(), QString());
}

/// For people: each size on each bar. From the top: where the bar tells its colour; where nothing
/// is known, on a light and on a dark desktop.
TEST(SymbolIcon, Board) {
    const std::array bars{
        u"#ffffff"_s, u"#f6f6f8"_s, u"#8a8f98"_s, u"#3b6ea5"_s, u"#1d1e21"_s, u"#000000"_s};
    constexpr QSize cell(220, 64);
    constexpr int gap = 12;
    QImage board(
        cell.width() * static_cast<int>(bars.size()), 3 * cell.height(), QImage::Format_RGB32);
    QPainter painter(&board);
    for (std::size_t column = 0; column < bars.size(); ++column) {
        const QColor bar(bars[column]);
        const bool isDark = contrastRatio(bar, Qt::white) > contrastRatio(bar, Qt::black);
        const std::array icons{
            symbolIcon(Symbol::CalendarBadgeClock, {isDark ? Qt::white : QColor(0x2e, 0x34, 0x36)}),
            icon(ColorScheme::Light),
            icon(ColorScheme::Dark)};
        for (std::size_t row = 0; row < icons.size(); ++row) {
            const QRect place(
                QPoint(
                    static_cast<int>(column) * cell.width(), static_cast<int>(row) * cell.height()),
                cell);
            painter.fillRect(place, bar);
            int x = place.x() + gap;
            for (const int size : barSizes) {
                icons.at(row).paint(&painter, QRect(x, place.center().y() - size / 2, size, size));
                x += size + gap;
            }
        }
    }
    painter.end();
    EXPECT_TRUE(board.save(galleryFile(u"tray"_s)));
}

} // namespace
} // namespace quorvane
