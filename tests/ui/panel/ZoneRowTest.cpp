// SPDX-License-Identifier: MIT
#include "PopoverFixture.h"

#include <panel/TimeZoneChip.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// The chips of the zones as a row that one walks by keys. At first they are, chosen ones in
/// brackets: [EST], PST, GMT, Berlin, Tokyo, Singapore, Sydney.
class ZoneRowTest : public PopoverFixture {
protected:
    [[nodiscard]] QList<ZoneChip*> chips() {
        auto all = view.findChildren<ZoneChip*>();
        std::ranges::sort(
            all, {}, [](const ZoneChip* chip) { return std::pair(chip->y(), chip->x()); });
        return all;
    }

    [[nodiscard]] QStringList labels() {
        QStringList texts;
        for (const auto* chip : chips())
            texts.append(chip->text());
        return texts;
    }

    void show(const QStringList& favorites) {
        model.setFavoriteTimeZoneIdentifiers(favorites);
        queue.run();
    }

    QString press(Qt::Key key) {
        QTest::keyClick(view.focusWidget(), key);
        queue.run();
        return QAccessible::queryAccessibleInterface(view.focusWidget())->text(QAccessible::Name);
    }
};

TEST_F(ZoneRowTest, IsOneTabStopThatTabComesBackTo) {
    button(u"Add time zone"_s).setFocus();
    EXPECT_EQ(press(Qt::Key_Tab), u"EST"_s);
    EXPECT_EQ(press(Qt::Key_Tab), u"Format"_s);
    EXPECT_EQ(press(Qt::Key_Backtab), u"EST"_s);
    EXPECT_EQ(press(Qt::Key_Right), u"PST"_s);
    EXPECT_EQ(press(Qt::Key_Tab), u"Format"_s);
    EXPECT_EQ(press(Qt::Key_Backtab), u"PST"_s);
    EXPECT_EQ(press(Qt::Key_Backtab), u"Add time zone"_s);
}

TEST_F(ZoneRowTest, ArrowsHomeAndEndMoveAndStopAtTheEnds) {
    button(u"EST"_s).setFocus();
    EXPECT_EQ(press(Qt::Key_Left), u"EST"_s);
    EXPECT_EQ(press(Qt::Key_Right), u"PST"_s);
    EXPECT_EQ(press(Qt::Key_End), u"Sydney"_s);
    EXPECT_EQ(press(Qt::Key_Right), u"Sydney"_s);
    EXPECT_EQ(press(Qt::Key_Left), u"Singapore"_s);
    EXPECT_EQ(press(Qt::Key_Home), u"EST"_s);
    EXPECT_EQ(model.selectedTimeZones().size(), 1U) << "moving chooses nothing";
}

TEST_F(ZoneRowTest, ArrowsGoAsOneSeesFromRightToLeft) {
    view.setLayoutDirection(Qt::RightToLeft);
    button(u"EST"_s).setFocus();
    EXPECT_EQ(press(Qt::Key_Left), u"PST"_s);
    EXPECT_EQ(press(Qt::Key_Right), u"EST"_s);
    EXPECT_EQ(press(Qt::Key_End), u"Sydney"_s);
}

TEST_F(ZoneRowTest, UpAndDownGoToTheLineAboveAndBelow) {
    auto favorites = model.favoriteTimeZoneIdentifiers();
    favorites << u"Asia/Kathmandu"_s << u"Asia/Kolkata"_s << u"Asia/Dubai"_s << u"Africa/Cairo"_s;
    show(favorites);
    button(u"PST"_s).setFocus();
    const auto* first = qobject_cast<ZoneChip*>(view.focusWidget());
    EXPECT_EQ(press(Qt::Key_Up), u"PST"_s);
    press(Qt::Key_Down);
    const auto* below = qobject_cast<ZoneChip*>(view.focusWidget());
    ASSERT_NE(below, nullptr);
    EXPECT_GT(below->y(), first->y());
    EXPECT_LT(std::abs(below->geometry().center().x() - first->geometry().center().x()), 60);
    EXPECT_EQ(press(Qt::Key_Down), below->text());
    press(Qt::Key_Up);
    EXPECT_EQ(qobject_cast<ZoneChip*>(view.focusWidget())->y(), first->y());
}

TEST_F(ZoneRowTest, FocusStaysAtThePlaceOfAZoneThatIsRemoved) {
    model.setSelectedTimeZones(zones.zones({u"Asia/Kathmandu"_s, u"Asia/Kolkata"_s}));
    show({u"Europe/London"_s});
    ASSERT_EQ(labels(), (QStringList{u"GMT"_s, u"Kathmandu"_s, u"Kolkata"_s}));
    button(u"Kathmandu"_s).setFocus();
    EXPECT_EQ(press(Qt::Key_Delete), u"Kolkata"_s);
    EXPECT_EQ(press(Qt::Key_Backspace), u"GMT"_s);
    EXPECT_EQ(press(Qt::Key_Backspace), u"GMT"_s) << "a suggestion is not removed";
    EXPECT_TRUE(model.selectedTimeZones().empty());
}

TEST_F(ZoneRowTest, FavouriteThatIsRemovedKeepsFocusAndPlaceAsASuggestion) {
    button(u"EST"_s).setFocus();
    EXPECT_EQ(press(Qt::Key_Delete), u"EST"_s);
    EXPECT_EQ(view.focusWidget()->accessibleDescription(), u"New York, UTC−5. Add"_s);
    EXPECT_EQ(press(Qt::Key_Right), u"PST"_s);
}

TEST_F(ZoneRowTest, AddingAZoneLeavesTheTabStopWhereItWas) {
    button(u"PST"_s).setFocus();
    button(u"Add time zone"_s).setFocus();
    model.setSelectedTimeZones(zones.zones({u"America/New_York"_s, u"Asia/Kathmandu"_s}));
    queue.run();
    EXPECT_EQ(press(Qt::Key_Tab), u"PST"_s);
}

TEST_F(ZoneRowTest, AssistiveTechnologyFindsEveryChip) {
    for (const auto* chip : chips()) {
        auto* found = widgetByRole(view, QAccessible::Button, chip->text());
        ASSERT_EQ(found, chip) << chip->text().toStdString();
        EXPECT_TRUE(QAccessible::queryAccessibleInterface(found)->state().focusable);
    }
    EXPECT_EQ(chips().size(), 7);
}

TEST_F(ZoneRowTest, ChipsWithOneLabelAddTheirCities) {
    show({u"America/New_York"_s, u"America/Toronto"_s, u"Europe/London"_s});
    EXPECT_EQ(labels(), (QStringList{u"EST New York"_s, u"EST Toronto"_s, u"GMT"_s}));
    EXPECT_EQ(button(u"EST Toronto"_s).toolTip(), u"Toronto, UTC−5. Add"_s);
    show({u"America/New_York"_s, u"Europe/London"_s});
    EXPECT_EQ(labels(), (QStringList{u"EST"_s, u"GMT"_s}));
}

} // namespace
} // namespace quorvane
