// SPDX-License-Identifier: MIT
#include "EntryFixture.h"

#include <entry/DateField.h>
#include <entry/TimeField.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class FieldChipTest : public EntryFixture {
protected:
    std::optional<Instant> minimum;
    DateField dateChip{binding(), [this] { return minimum; }, dependencies(), &window};
    TimeField timeChip{binding(), [this] { return minimum; }, dependencies(), &window};

    FieldChipTest() {
        dateChip.move(20, 20);
        timeChip.move(160, 20);
        dateChip.setAccessibleDescription(u"Start date"_s);
        showWindow();
    }

    static void turnWheel(QWidget& chip, int angle) {
        const auto place = QPointF(chip.rect().center());
        QWheelEvent event(
            place,
            chip.mapToGlobal(place),
            {},
            {0, angle},
            Qt::NoButton,
            Qt::NoModifier,
            Qt::NoScrollPhase,
            false);
        QCoreApplication::sendEvent(&chip, &event);
    }

    static QWidget* popover() { return QApplication::activePopupWidget(); }

    /// At the middle of the chip's upper edge.
    static QRgb frameColor(QWidget& chip) {
        return chip.grab().toImage().pixel(chip.width() / 2, 0);
    }
};

TEST_F(FieldChipTest, IsAButtonNamedByWhatItShows) {
    EXPECT_EQ(dateChip.text(), u"Mar 9, 2024"_s);
    EXPECT_EQ(timeChip.text(), u"05:05 PM"_s);
    const auto& chip = button(u"Mar 9, 2024"_s);
    EXPECT_EQ(&chip, &dateChip);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&dateChip)->text(QAccessible::Description),
        u"Start date"_s);
}

TEST_F(FieldChipTest, ShowsTheDateAsItIsAfterARefresh) {
    date = date + 24h + 10min;
    dateChip.refresh();
    timeChip.refresh();
    EXPECT_EQ(dateChip.text(), u"Mar 10, 2024"_s);
    EXPECT_EQ(timeChip.text(), u"06:15 PM"_s); // daylight time has begun
    currentZone.set(*zones.zone(u"Asia/Tokyo"_s));
    timeChip.refresh();
    EXPECT_EQ(timeChip.text(), u"07:15 AM"_s);
}

TEST_F(FieldChipTest, WhatIsEditedShowsAtOnce) {
    clickOn(timeChip);
    press(Qt::Key_Up);
    EXPECT_EQ(timeChip.text(), u"06:05 PM"_s);
}

TEST_F(FieldChipTest, TellsWhetherItIsExpanded) {
    EXPECT_TRUE(stateOf(dateChip).expandable);
    EXPECT_TRUE(stateOf(dateChip).collapsed);
    clickOn(dateChip);
    EXPECT_TRUE(stateOf(dateChip).expanded);
    press(Qt::Key_Escape);
    EXPECT_FALSE(stateOf(dateChip).expanded);
}

TEST_F(FieldChipTest, ItsFrameHasTheAccentsColorWhileItIsOpen) {
    const auto accent = Theme::of(window.palette()).accentText.rgb();
    EXPECT_NE(frameColor(dateChip), accent);
    clickOn(dateChip);
    EXPECT_EQ(frameColor(dateChip), accent);
    press(Qt::Key_Escape);
    EXPECT_NE(frameColor(dateChip), accent);
}

TEST_F(FieldChipTest, EscapeClosesAndGivesTheFocusBack) {
    timeChip.setFocus();
    press(Qt::Key_Space);
    ASSERT_NE(popover(), nullptr);
    EXPECT_FALSE(timeChip.hasFocus());
    press(Qt::Key_Escape);
    EXPECT_EQ(popover(), nullptr);
    EXPECT_TRUE(timeChip.hasFocus());
}

TEST_F(FieldChipTest, ArrowsStepTheFocusedChip) {
    dateChip.setFocus();
    press(Qt::Key_Up);
    EXPECT_EQ(dateChip.text(), u"Mar 10, 2024"_s);
    EXPECT_TRUE(dateChip.hasFocus());
    press(Qt::Key_Down);
    press(Qt::Key_Down, Qt::KeypadModifier);
    EXPECT_EQ(dateChip.text(), u"Mar 8, 2024"_s);
    timeChip.setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(timeChip.text(), u"05:04 PM"_s);
    press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(timeChip.text(), u"05:04 PM"_s);
    EXPECT_EQ(popover(), nullptr);
}

TEST_F(FieldChipTest, TheWheelStepsAtEachNotch) {
    timeChip.setFocus();
    turnWheel(dateChip, 120);
    EXPECT_EQ(dateChip.text(), u"Mar 10, 2024"_s);
    turnWheel(dateChip, -360);
    EXPECT_EQ(dateChip.text(), u"Mar 7, 2024"_s);
    turnWheel(timeChip, 60);
    EXPECT_EQ(timeChip.text(), u"05:05 PM"_s);
    turnWheel(timeChip, 60);
    EXPECT_EQ(timeChip.text(), u"05:06 PM"_s);
    turnWheel(timeChip, 100);
    turnWheel(timeChip, -100);
    turnWheel(timeChip, -20);
    EXPECT_EQ(timeChip.text(), u"05:05 PM"_s);
    turnWheel(timeChip, 0);
    EXPECT_EQ(timeChip.text(), u"05:05 PM"_s);
}

TEST_F(FieldChipTest, StepsEndAtTheMinimumsDay) {
    minimum = date + -5h;
    dateChip.setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(dateChip.text(), u"Mar 9, 2024"_s);
    date = date + -17h + -5min;
    timeChip.refresh();
    ASSERT_EQ(timeChip.text(), u"12:00 AM"_s);
    timeChip.setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(timeChip.text(), u"12:00 AM"_s);
}

TEST_F(FieldChipTest, SecondPressOnTheChipCloses) {
    clickOn(dateChip);
    auto* open = popover();
    ASSERT_NE(open, nullptr);
    // The window system sends a press anywhere to the popup.
    const auto place = open->mapFromGlobal(dateChip.mapToGlobal(QPoint(5, 5)));
    QTest::mouseClick(open, Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(popover(), nullptr);
}

TEST_F(FieldChipTest, SecondPressByAssistiveTechnologyCloses) {
    dateChip.click();
    ASSERT_NE(popover(), nullptr);
    dateChip.click();
    EXPECT_EQ(popover(), nullptr);
}

TEST_F(FieldChipTest, PressOutsideCloses) {
    clickOn(dateChip);
    auto* open = popover();
    ASSERT_NE(open, nullptr);
    const auto place = open->mapFromGlobal(window.mapToGlobal(QPoint(590, 390)));
    QTest::mouseClick(open, Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(popover(), nullptr);
}

TEST_F(FieldChipTest, HidingTheChipCloses) {
    clickOn(dateChip);
    dateChip.hide();
    EXPECT_EQ(popover(), nullptr);
}

} // namespace
} // namespace quorvane
