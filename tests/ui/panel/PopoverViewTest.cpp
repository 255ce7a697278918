// SPDX-License-Identifier: MIT
#include "PopoverFixture.h"

#include <controls/Theme.h>

#include <QLayout>

#include <algorithm>
#include <map>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class PopoverViewTest : public PopoverFixture {};

TEST_F(PopoverViewTest, ShowsTheOutputFromTheStart) {
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST"_s);
}

TEST_F(PopoverViewTest, BurstOfAssignmentsLeadsToOneRefresh) {
    model.setFormatPreset(DateFormatPreset::UnixTimestamp);
    model.setStartDate({1});
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST"_s);
    queue.run();
    EXPECT_EQ(preview(), u"1"_s);
    queue.advance(1s); // after which the output is read out
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(PopoverViewTest, BoxesSetTheFlagsAndOneStaysOn) {
    box(u"Time"_s).click();
    queue.run();
    EXPECT_FALSE(model.includeTime());
    EXPECT_EQ(preview(), u"March 9, 2024"_s);
    EXPECT_FALSE(box(u"Date"_s).isEnabled());
    box(u"Time"_s).click();
    queue.run();
    EXPECT_TRUE(box(u"Date"_s).isEnabled());
}

TEST_F(PopoverViewTest, ChipsAddAndRemoveZonesAndTheLayoutIsChosen) {
    EXPECT_FALSE(find<QWidget>(QAccessible::RadioButton, u"Lines"_s).isVisible());
    button(u"GMT"_s).click(); // London, a favourite
    queue.run();
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST / March 9, 2024 at 10:05 PM GMT"_s);
    QTest::mouseClick(&find<QWidget>(QAccessible::RadioButton, u"Lines"_s), Qt::LeftButton);
    queue.run();
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST\nMarch 9, 2024 at 10:05 PM GMT"_s);
    button(u"EST"_s).click();
    queue.run();
    EXPECT_EQ(preview(), u"March 9, 2024 at 10:05 PM GMT"_s);
}

TEST_F(PopoverViewTest, FocusStaysAtTheChipsPlaceWhenItIsPressed) {
    button(u"GMT"_s).setFocus();
    QTest::keyClick(&button(u"GMT"_s), Qt::Key_Space);
    queue.run();
    EXPECT_TRUE(button(u"GMT"_s).hasFocus());
    EXPECT_EQ(button(u"GMT"_s).accessibleDescription(), u"London, UTC+0. Remove"_s);
}

TEST_F(PopoverViewTest, PlusOpensThePickerAndWhatIsPickedIsWritten) {
    QTest::mouseClick(&button(u"Add time zone"_s), Qt::LeftButton);
    auto& search = field(u"Search"_s);
    EXPECT_TRUE(search.hasFocus());
    QTest::keyClicks(&search, u"kathmandu"_s);
    QTest::keyClick(&search, Qt::Key_Return);
    QTest::keyClick(&search, Qt::Key_Escape);
    queue.run();
    EXPECT_EQ(closed, 0);
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST / March 10, 2024 at 3:50 AM GMT+5:45"_s);
    EXPECT_EQ(button(u"Kathmandu"_s).accessibleDescription(), u"Kathmandu, UTC+5:45. Remove"_s);
    EXPECT_TRUE(button(u"Add time zone"_s).hasFocus());
}

TEST_F(PopoverViewTest, RangeShowsTheEndAsItWas) {
    const auto chips = [this](const QString& description) {
        const auto controls = view.findChildren<PressableControl*>();
        return std::ranges::count_if(controls, [&](const auto* control) {
            return control->isVisible() && control->accessibleDescription() == description;
        });
    };
    EXPECT_EQ(chips(u"End date"_s), 0);
    box(u"to"_s).click();
    queue.run();
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST – March 9, 2024 at 6:05 PM EST"_s);
    EXPECT_EQ(chips(u"End date"_s), 1);
    EXPECT_EQ(chips(u"End time"_s), 1);
    const auto end = model.endDate();
    box(u"to"_s).click();
    box(u"to"_s).click();
    EXPECT_EQ(model.endDate(), end);
}

TEST_F(PopoverViewTest, OnlyTheChipsOfIncludedPartsShow) {
    box(u"to"_s).click();
    box(u"Date"_s).click();
    queue.run();
    std::map<QString, bool> isShown;
    for (const auto* control : view.findChildren<PressableControl*>())
        isShown[control->accessibleDescription()] = control->isVisible();
    const auto expectShown = [&](const QString& part, bool shown) {
        ASSERT_TRUE(isShown.contains(part)) << part.toStdString();
        EXPECT_EQ(isShown[part], shown) << part.toStdString();
    };
    expectShown(u"Start date"_s, false);
    expectShown(u"End date"_s, false);
    expectShown(u"Start time"_s, true);
    expectShown(u"End time"_s, true);
}

TEST_F(PopoverViewTest, LabelNamesTheLocalZone) {
    EXPECT_NE(widgetByRole(view, QAccessible::StaticText, u"(in local time EST)"_s), nullptr);
    currentZone.set(*zones.zone(u"Asia/Kolkata"_s));
    view.refreshSoon();
    queue.run();
    EXPECT_NE(widgetByRole(view, QAccessible::StaticText, u"(in local time Kolkata)"_s), nullptr);
}

TEST_F(PopoverViewTest, CopyPutsTheOutputAndConfirmsItForAWhile) {
    auto& copy = button(u"Copy"_s);
    copy.click();
    EXPECT_EQ(pasteboard.contents(), plainText(u"March 9, 2024 at 5:05 PM EST"_s));
    EXPECT_EQ(copy.text(), u"Copied"_s);
    queue.advance(1499ms);
    EXPECT_EQ(copy.text(), u"Copied"_s);
    queue.advance(1ms);
    EXPECT_EQ(copy.text(), u"Copy"_s);
    EXPECT_EQ(closed, 0);
}

TEST_F(PopoverViewTest, OutcomeOfCopyIsAnnouncedAndTheButtonKeepsItsName) {
    HeardAnnouncements heard(view);
    auto& copy = button(u"Copy"_s);
    copy.click();
    EXPECT_EQ(heard.take(), QStringList{u"Copied"_s});
    EXPECT_EQ(&button(u"Copy"_s), &copy);
    pasteboard.setRefusing(true);
    copy.click();
    EXPECT_EQ(heard.take(), QStringList{u"Could not copy"_s});
    queue.advance(1h);
    EXPECT_EQ(heard.take(), QStringList());
}

TEST_F(PopoverViewTest, ChangedOutputIsReadOnceAfterAPause) {
    HeardAnnouncements heard(view);
    auto& time = box(u"Time"_s);
    for (int press = 0; press < 3; ++press) {
        time.click();
        queue.advance(500ms);
    }
    EXPECT_EQ(heard.take(), QStringList());
    queue.advance(500ms);
    EXPECT_EQ(heard.take(), QStringList{u"March 9, 2024"_s});
    queue.advance(1h);
    EXPECT_EQ(heard.take(), QStringList());
}

TEST_F(PopoverViewTest, OutputThatChangesWhileNobodySeesItIsNotRead) {
    HeardAnnouncements heard(view);
    view.hide();
    box(u"Time"_s).click();
    queue.advance(1h);
    view.show();
    queue.advance(1h);
    EXPECT_EQ(heard.take(), QStringList());
}

TEST_F(PopoverViewTest, CopyThatThePasteboardRefusesIsNotConfirmed) {
    auto& copy = button(u"Copy"_s);
    pasteboard.setRefusing(true);
    copy.click();
    EXPECT_EQ(copy.text(), u"Could not copy"_s);
    queue.advance(1499ms);
    EXPECT_EQ(copy.text(), u"Could not copy"_s);
    queue.advance(1ms);
    EXPECT_EQ(copy.text(), u"Copy"_s);
}

TEST_F(PopoverViewTest, CopyOfSeveralLinesIsOneText) {
    model.setSelectedTimeZones(
        {*zones.zone(u"America/New_York"_s), *zones.zone(u"Europe/London"_s)});
    model.setMultiZoneLayout(MultiZoneLayout::Lines);
    button(u"Copy"_s).click();
    EXPECT_EQ(
        pasteboard.contents(),
        plainText(u"March 9, 2024 at 5:05 PM EST\nMarch 9, 2024 at 10:05 PM GMT"_s));
}

TEST_F(PopoverViewTest, OneLineIsCopiedAsTheWholeIs) {
    model.setSelectedTimeZones(
        {*zones.zone(u"America/New_York"_s), *zones.zone(u"Europe/London"_s)});
    model.setMultiZoneLayout(MultiZoneLayout::Lines);
    queue.run();
    auto& output = find<QWidget>(QAccessible::EditableText, u"Preview"_s);
    output.setFocus();
    const auto copyLine = [&] {
        QTest::keyClick(&output, Qt::Key_F10, Qt::ShiftModifier);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    };
    QTest::keyClick(&output, Qt::Key_Down);
    copyLine();
    EXPECT_EQ(pasteboard.contents(), plainText(u"March 9, 2024 at 10:05 PM GMT"_s));
    EXPECT_EQ(button(u"Copy"_s).text(), u"Copied"_s);
    queue.advance(1500ms);
    pasteboard.setRefusing(true);
    copyLine();
    EXPECT_EQ(button(u"Copy"_s).text(), u"Could not copy"_s);
}

TEST_F(PopoverViewTest, CopyTwiceIsConfirmedUntilTheFirstOneEnds) {
    auto& copy = button(u"Copy"_s);
    copy.click();
    queue.advance(1s);
    copy.click();
    queue.advance(499ms);
    EXPECT_EQ(copy.text(), u"Copied"_s);
    queue.advance(1ms);
    EXPECT_EQ(copy.text(), u"Copy"_s);
    queue.advance(1s);
    EXPECT_EQ(copy.text(), u"Copy"_s);
}

TEST_F(PopoverViewTest, KeysReachTheActions) {
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(inserted, 1);
    QTest::keyClick(&view, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(preferences, 1);
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(closed, 1);
}

TEST_F(PopoverViewTest, ButtonsReachTheActions) {
    button(u"Insert"_s).click();
    EXPECT_EQ(inserted, 1);
    button(u"Close"_s).click();
    EXPECT_EQ(closed, 1);
}

TEST_F(PopoverViewTest, InsertNamesItsTargetInItsToolTipAndDescription) {
    const auto& insert = button(u"Insert"_s);
    EXPECT_EQ(insert.toolTip(), u"Insert (Ctrl+Return)"_s);
    view.setInsertTarget(u"Mousepad %2"_s);
    EXPECT_EQ(insert.toolTip(), u"Insert into Mousepad %2 (Ctrl+Return)"_s);
    EXPECT_EQ(insert.accessibleDescription(), insert.toolTip());
    view.setInsertTarget({});
    EXPECT_EQ(insert.toolTip(), u"Insert (Ctrl+Return)"_s);
}

TEST_F(PopoverViewTest, NoticeTakesItsRoomOnlyWhileThereIsOne) {
    const auto height = [this] {
        return view.layout()->heightForWidth(view.width());
    };
    const int before = height();
    view.setNotice(u"Copied instead."_s);
    EXPECT_TRUE(find<QWidget>(QAccessible::StaticText, u"Copied instead."_s).isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return height() > before; }));
    view.setNotice({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return height() == before; }));
}

TEST_F(PopoverViewTest, WithoutAZoneForTheTimeNothingCanBeDelivered) {
    model.setSelectedTimeZones({});
    queue.run();
    EXPECT_EQ(preview(), QString());
    EXPECT_FALSE(button(u"Copy"_s).isEnabled());
    EXPECT_FALSE(button(u"Insert"_s).isEnabled());
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(inserted, 0);
    model.setSelectedTimeZones({*zones.zone(u"UTC"_s)});
    queue.run();
    EXPECT_TRUE(button(u"Insert"_s).isEnabled());
}

TEST_F(PopoverViewTest, WhatCannotBeUsedIsDimmedAsOne) {
    const auto background = Theme::of(view.palette()).windowBackground;
    const auto foregroundOf = [&](QWidget& widget) {
        // The darkest pixel is that of text or symbol, however it is smoothed.
        const auto image = widget.grab().toImage();
        int darkest = 255;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                darkest = std::min(darkest, qGray(image.pixel(x, y)));
        }
        return darkest;
    };
    auto& format = find<QWidget>(QAccessible::Grouping, u"Format"_s);
    auto& copy = *button(u"Copy"_s).parentWidget();
    const int formatColor = foregroundOf(format);
    const int copyColor = foregroundOf(copy);
    model.setSelectedTimeZones({});
    queue.run();
    const int white = qGray(background.rgb());
    EXPECT_NEAR(foregroundOf(format), white + (formatColor - white) * 0.4, 3);
    EXPECT_NEAR(foregroundOf(copy), white + (copyColor - white) * 0.5, 3);
}

} // namespace
} // namespace quorvane
