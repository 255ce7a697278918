// SPDX-License-Identifier: MIT
#include "ChoiceRow.h"
#include "RowMenu.h"

#include <controls/MacPopUpButton.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <support/ControlWindow.h>
#include <support/SymbolSearch.h>

#include <QApplication>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class MenuMeasuresTest : public testing::Test {
protected:
    ControlWindow window;

    /// A list with the first title chosen.
    RowMenu& show(const QStringList& titles) {
        std::vector<MenuRow*> rows;
        for (const auto& title : titles)
            rows.push_back(new ChoiceRow(title, rows.empty(), nullptr));
        auto& menu = window.add(new RowMenu(QAccessible::List, rows, 0, nullptr));
        menu.resize(menu.sizeHint().expandedTo(menu.minimumSize()));
        EXPECT_TRUE(window.open());
        return menu;
    }

    static ChoiceRow& row(RowMenu& menu, qsizetype index) {
        return *menu.findChildren<ChoiceRow*>().at(index);
    }

    [[nodiscard]] int titleWidth(const QString& title) const {
        const QFontMetricsF metrics(textFont(window.font(), TextStyle::Callout));
        return static_cast<int>(std::ceil(metrics.horizontalAdvance(title)));
    }
};

TEST_F(MenuMeasuresTest, IsAtLeastAHundredAndEightyWide) {
    EXPECT_EQ(show({u"A"_s, u"B"_s}).minimumWidth(), 180);
}

TEST_F(MenuMeasuresTest, RowsAreThirtyHighWithFourAboveAndBelow) {
    auto& menu = show({u"A"_s, u"B"_s});
    EXPECT_EQ(menu.sizeHint().height(), 4 + 30 + 30 + 4);
    EXPECT_EQ(row(menu, 0).geometry(), QRect(0, 4, menu.width(), 30));
    EXPECT_EQ(row(menu, 1).y(), 4 + 30);
}

TEST_F(MenuMeasuresTest, RowHasRoomForItsMarkItsTitleAndTheirMargins) {
    const auto title = u"A title that is longer than what every menu has room for"_s;
    auto& menu = show({title, u"B"_s});
    EXPECT_EQ(row(menu, 0).sizeHint().width(), 12 + 12 + 8 + titleWidth(title) + 12);
    EXPECT_EQ(menu.sizeHint().width(), row(menu, 0).sizeHint().width());
}

TEST_F(MenuMeasuresTest, MarkOfTheChosenRowStandsInASlotOfTwelve) {
    auto& menu = show({u"A"_s, u"B"_s});
    const ExpectedSymbol mark{
        Symbol::Checkmark, {12, SymbolStyle::semibold}, Theme::of(window.palette()).accentText};
    row(menu, 0).clearFocus();
    EXPECT_EQ(placeOf(mark, row(menu, 0)), QRect(12, 9, 12, 12));
    EXPECT_EQ(placeOf(mark, row(menu, 1)), std::nullopt);
}

TEST_F(MenuMeasuresTest, TitleStandsEightBehindTheSlot) {
    auto& menu = show({u"A"_s, u"H"_s});
    const auto image = picture(row(menu, 1));
    const QRgb background = image.pixel(0, 0);
    int first = image.width();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < first; ++x) {
            if (std::abs(qGray(image.pixel(x, y)) - qGray(background)) > 40)
                first = x;
        }
    }
    const QFontMetricsF metrics(textFont(window.font(), TextStyle::Callout));
    EXPECT_NEAR(first, 12 + 12 + 8 + metrics.leftBearing(u'H'), 1);
}

/// Where what differs from an empty row's background begins and ends, in points.
std::pair<int, int> extentOf(QWidget& row, int from) {
    const auto image = picture(row);
    const QRgb background = image.pixel(from, 0);
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = from; x < image.width(); ++x) {
            if (std::abs(qGray(image.pixel(x, y)) - qGray(background)) > 40) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
        }
    }
    return {first, last};
}

TEST_F(MenuMeasuresTest, SampleEndsWithTheRowsRoomAndNeverReachesTheTitle) {
    auto& menu = show({u"A"_s, u"H"_s});
    auto& plain = row(menu, 1);
    plain.setFixedWidth(300);
    const auto titleEnd = extentOf(plain, 32).second;
    plain.setSample(u"H"_s);
    EXPECT_NEAR(extentOf(plain, 100).second, 300 - 12 - 1, 2);
    EXPECT_EQ(plain.sizeHint().width(), 32 + titleWidth(u"H"_s) + 12);
    plain.setSample(u"H"_s.repeated(200));
    const auto [first, last] = extentOf(plain, titleEnd + 2);
    EXPECT_GE(first, titleEnd + 14);
    EXPECT_LE(last, 300 - 12);
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_NEAR(extentOf(plain, 0).first, 12, 2);
}

TEST_F(MenuMeasuresTest, PopUpHasSixBetweenItsTitleAndItsChevron) {
    auto& popUp = window.add(new MacPopUpButton(PopoverEffects{}));
    popUp.setChoices({u"Medium"_s}, 0);
    const auto* face = popUp.findChild<PressableControl*>();
    ASSERT_NE(face, nullptr);
    EXPECT_EQ(face->sizeHint(), QSize(10 + titleWidth(u"Medium"_s) + 6 + 10 + 10, 30));
}

} // namespace
} // namespace quorvane
