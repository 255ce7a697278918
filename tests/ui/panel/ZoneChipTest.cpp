// SPDX-License-Identifier: MIT
#include <panel/FavoriteSuggestionChip.h>
#include <panel/TimeZoneChip.h>
#include <support/ControlWindow.h>
#include <time/ZoneDatabase.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class ZoneChipTest : public testing::Test {
protected:
    int removed = 0;
    int added = 0;
    ControlWindow window;
    TimeZoneChip& chosen =
        window.add(new TimeZoneChip(ZoneDatabase::utc(), u"Ho Chi Minh"_s, [this] { ++removed; }));
    FavoriteSuggestionChip& suggested =
        window.add(new FavoriteSuggestionChip(ZoneDatabase::utc(), u"PST"_s, [this] { ++added; }));

    ZoneChipTest() { EXPECT_TRUE(window.open()); }
};

TEST_F(ZoneChipTest, PressAnywhereRemovesOnce) {
    const QRect area = chosen.rect();
    const QPoint places[] = {
        area.center(), {15, 15}, {area.right() - 14, 15}, {area.width() / 2, 1}};
    for (const auto& place : places) {
        removed = 0;
        QTest::mouseClick(&chosen, Qt::LeftButton, {}, place);
        EXPECT_EQ(removed, 1);
    }
    QTest::keyClick(&chosen, Qt::Key_Space);
    EXPECT_EQ(removed, 2);
    EXPECT_EQ(added, 0);
}

TEST_F(ZoneChipTest, PressAnywhereAddsOnce) {
    QTest::mouseClick(&suggested, Qt::LeftButton, {}, {12, 15});
    EXPECT_EQ(added, 1);
    QTest::keyClick(&suggested, Qt::Key_Return);
    EXPECT_EQ(added, 2);
    EXPECT_EQ(removed, 0);
}

TEST_F(ZoneChipTest, DeleteAndBackspaceRemoveAndNeverAdd) {
    for (const auto key : {Qt::Key_Delete, Qt::Key_Backspace}) {
        removed = 0;
        QTest::keyClick(&chosen, key);
        EXPECT_EQ(removed, 1);
        QTest::keyClick(&chosen, key, Qt::ControlModifier);
        EXPECT_EQ(removed, 1);
        QTest::keyClick(&suggested, key);
        EXPECT_EQ(added, 0);
    }
}

TEST_F(ZoneChipTest, SaysWhereItIsAndWhatAPressDoes) {
    chosen.setTexts(u"ICT"_s, u"Ho Chi Minh, UTC+7"_s);
    suggested.setTexts(u"PST"_s, u"Los Angeles, UTC−8"_s);
    EXPECT_EQ(accessible(chosen).text(QAccessible::Name), u"ICT"_s);
    EXPECT_EQ(accessible(suggested).text(QAccessible::Name), u"PST"_s);
    const auto expectDescription = [](QWidget& chip, const QString& text) {
        EXPECT_EQ(chip.toolTip(), text);
        EXPECT_EQ(accessible(chip).text(QAccessible::Description), text);
    };
    expectDescription(chosen, u"Ho Chi Minh, UTC+7. Remove"_s);
    expectDescription(suggested, u"Los Angeles, UTC−8. Add"_s);
}

TEST_F(ZoneChipTest, FollowsItsTexts) {
    const int width = suggested.sizeHint().width();
    suggested.setTexts(u"America"_s, u"Los Angeles, UTC−7"_s);
    EXPECT_GT(suggested.sizeHint().width(), width);
    EXPECT_EQ(accessible(suggested).text(QAccessible::Name), u"America"_s);
    EXPECT_EQ(suggested.toolTip(), u"Los Angeles, UTC−7. Add"_s);
}

TEST_F(ZoneChipTest, RightToLeftChangesItsPictureAndNotItsSize) {
    const auto size = chosen.sizeHint();
    const auto before = picture(chosen);
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(chosen.sizeHint(), size);
    EXPECT_NE(picture(chosen), before);
}

} // namespace
} // namespace quorvane
