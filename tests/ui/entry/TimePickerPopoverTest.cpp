// SPDX-License-Identifier: MIT
#include "TimePickerFixture.h"

namespace quorvane {
namespace {

class TimePickerPopoverTest : public TimePickerFixture {};

TEST_F(TimePickerPopoverTest, OpeningShortlyAfterMidnightShowsTwelveAndDropsTheSeconds) {
    openOn(30min + 45s);
    EXPECT_EQ(hour().text(), u"12"_s);
    EXPECT_EQ(minute().text(), u"30"_s);
    EXPECT_FALSE(isPM());
    EXPECT_EQ(timeOfDay(), 30min);
}

TEST_F(TimePickerPopoverTest, OpeningAtNoonShowsTwelveInTheAfternoon) {
    openOn(12h + 5min);
    EXPECT_EQ(hour().text(), u"12"_s);
    EXPECT_EQ(minute().text(), u"05"_s);
    EXPECT_TRUE(isPM());
}

TEST_F(TimePickerPopoverTest, OpeningWritesTheLoadedTimeAndNoOther) {
    openOn(13h + 7min + 5s);
    EXPECT_EQ(hour().text(), u"1"_s);
    EXPECT_EQ(minute().text(), u"07"_s);
    EXPECT_TRUE(isPM());
    EXPECT_EQ(writes, std::vector{midnight + 13h + 7min});
}

TEST_F(TimePickerPopoverTest, OpeningSelectsTheHour) {
    openOn(13h + 7min);
    EXPECT_TRUE(hour().hasFocus());
    EXPECT_EQ(hour().selectedText(), u"1"_s);
}

TEST_F(TimePickerPopoverTest, TypedHourIsWrittenAtOnce) {
    openOn(15h + 20min);
    press(Qt::Key_7);
    EXPECT_EQ(hour().text(), u"7"_s);
    EXPECT_EQ(timeOfDay(), 19h + 20min);
}

TEST_F(TimePickerPopoverTest, HoursThatTheDialLacksChangeNothing) {
    openOn(15h + 20min);
    for (const auto& text : {u"13"_s, u"0"_s, u"-3"_s, u"x"_s, u"3 "_s, u"３"_s}) {
        paste(text);
        EXPECT_EQ(hour().text(), text);
        EXPECT_EQ(timeOfDay(), 15h + 20min) << text.toStdString();
    }
    press(Qt::Key_Backspace);
    EXPECT_EQ(timeOfDay(), 15h + 20min);
}

TEST_F(TimePickerPopoverTest, MinuteOfOneDigitStaysAsTypedUntilItSteps) {
    openOn(15h + 20min);
    press(Qt::Key_Tab);
    press(Qt::Key_5);
    EXPECT_EQ(minute().text(), u"5"_s);
    EXPECT_EQ(timeOfDay(), 15h + 5min);
    press(Qt::Key_Up);
    EXPECT_EQ(minute().text(), u"06"_s);
    EXPECT_EQ(timeOfDay(), 15h + 6min);
}

TEST_F(TimePickerPopoverTest, HourStepsRoundTheDialWithinItsHalfOfTheDay) {
    openOn(20min);
    press(Qt::Key_Up);
    EXPECT_EQ(hour().text(), u"1"_s);
    EXPECT_FALSE(isPM());
    EXPECT_EQ(timeOfDay(), 1h + 20min);
    press(Qt::Key_Down);
    EXPECT_EQ(hour().text(), u"12"_s);
    EXPECT_EQ(timeOfDay(), 20min);
}

TEST_F(TimePickerPopoverTest, MinuteStepsRoundAndLeavesTheHour) {
    openOn(9h + 59min);
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    EXPECT_EQ(minute().text(), u"00"_s);
    EXPECT_EQ(hour().text(), u"9"_s);
    EXPECT_EQ(timeOfDay(), 9h);
}

TEST_F(TimePickerPopoverTest, MinuteStepsWhileNoFieldHasTheFocus) {
    openOn(9h + 15min);
    hour().clearFocus();
    press(Qt::Key_Up);
    EXPECT_EQ(timeOfDay(), 9h + 16min);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(timeOfDay(), 9h + 14min);
}

TEST_F(TimePickerPopoverTest, TabGoesToAndFro) {
    openOn(9h + 15min);
    press(Qt::Key_Tab);
    EXPECT_TRUE(minute().hasFocus());
    EXPECT_EQ(minute().selectedText(), u"15"_s);
    press(Qt::Key_Tab);
    EXPECT_TRUE(hour().hasFocus());
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(minute().hasFocus());
    minute().clearFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(hour().hasFocus());
}

TEST_F(TimePickerPopoverTest, ArrowsToTheSideGoToTheirField) {
    openOn(9h + 15min);
    press(Qt::Key_Right);
    EXPECT_TRUE(minute().hasFocus());
    press(Qt::Key_Right);
    EXPECT_TRUE(minute().hasFocus());
    press(Qt::Key_Left);
    EXPECT_TRUE(hour().hasFocus());
}

TEST_F(TimePickerPopoverTest, KeysGoByTheirMeaning) {
    openOn(9h + 15min);
    // The key of the right arrow (evdev 106) in a layout that has a digit there.
    QKeyEvent digit(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, 114, 0, 0, u"7"_s);
    QCoreApplication::sendEvent(&hour(), &digit);
    EXPECT_EQ(hour().text(), u"7"_s);
    // The key of the letter A (evdev 30), which is an arrow on a layer of Neo.
    QKeyEvent layer(QEvent::KeyPress, Qt::Key_Right, Qt::GroupSwitchModifier, 38, 0, 0);
    QCoreApplication::sendEvent(&hour(), &layer);
    EXPECT_TRUE(minute().hasFocus());
    // The 8 of the keypad (evdev 72), which means an arrow without Num Lock.
    QKeyEvent keypad(QEvent::KeyPress, Qt::Key_Up, Qt::KeypadModifier, 80, 0, 0);
    QCoreApplication::sendEvent(&minute(), &keypad);
    EXPECT_EQ(minute().text(), u"16"_s);
}

TEST_F(TimePickerPopoverTest, KeysWithoutAMeaningGoByTheirPosition) {
    openOn(9h + 15min);
    const auto pressPosition = [](QWidget& widget, quint32 evdevCode) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, evdevCode + 8, 0, 0);
        QCoreApplication::sendEvent(&widget, &event);
    };
    pressPosition(hour(), 106); // the right arrow
    EXPECT_TRUE(minute().hasFocus());
    pressPosition(minute(), 103); // up
    EXPECT_EQ(minute().text(), u"16"_s);
    pressPosition(minute(), 15); // Tab
    EXPECT_TRUE(hour().hasFocus());
    pressPosition(hour(), 28); // Return
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(TimePickerPopoverTest, OtherKeysReachTheField) {
    openOn(9h + 15min);
    press(Qt::Key_1);
    press(Qt::Key_1);
    EXPECT_EQ(hour().text(), u"11"_s);
    press(Qt::Key_Backspace);
    EXPECT_EQ(hour().text(), u"1"_s);
    int returns = 0;
    QObject::connect(&hour(), &QLineEdit::returnPressed, &hour(), [&] { ++returns; });
    press(Qt::Key_Return);
    EXPECT_EQ(returns, 1);
    EXPECT_EQ(timeOfDay(), 1h + 15min);
}

TEST_F(TimePickerPopoverTest, ReturnTakesTheTimeAndCloses) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        openOn(9h + 15min);
        press(Qt::Key_7);
        press(key);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_EQ(timeOfDay(), 7h + 15min);
        EXPECT_TRUE(chip.hasFocus());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(TimePickerPopoverTest, EscapeCloses) {
    openOn(9h + 15min);
    press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(TimePickerPopoverTest, ReturnOnAnUnfinishedTimeShowsItAndStays) {
    openOn(9h + 15min);
    press(Qt::Key_Backspace);
    EXPECT_FALSE(isRefused(hour()));
    press(Qt::Key_Return);
    EXPECT_TRUE(isRefused(hour()));
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(timeOfDay(), 9h + 15min);
}

TEST_F(TimePickerPopoverTest, TextThatCanBecomeNoTimeIsFramedAtOnce) {
    openOn(9h + 15min);
    EXPECT_FALSE(isRefused(hour()));
    for (const auto& text : {u"x"_s, u"25"_s, u"130x"_s, u"-3"_s, u"9:75"_s}) {
        paste(text);
        EXPECT_TRUE(isRefused(hour())) << text.toStdString();
        EXPECT_EQ(descriptionOf(hour()), u"Not an hour"_s);
        paste(u"9"_s);
        EXPECT_FALSE(isRefused(hour()));
        EXPECT_NE(descriptionOf(hour()), u"Not an hour"_s);
    }
    press(Qt::Key_Tab);
    paste(u"60"_s);
    EXPECT_TRUE(isRefused(minute()));
    EXPECT_EQ(descriptionOf(minute()), u"Not a minute"_s);
}

TEST_F(TimePickerPopoverTest, UnfinishedTextIsFramedAndReplacedWhenItsFieldIsLeft) {
    openOn(9h + 15min);
    paste(u"14:"_s);
    EXPECT_FALSE(isRefused(hour()));
    press(Qt::Key_Tab);
    EXPECT_EQ(hour().text(), u"9"_s);
    EXPECT_TRUE(isRefused(hour()));
    EXPECT_EQ(timeOfDay(), 9h + 15min);
    press(Qt::Key_Backspace);
    press(Qt::Key_Left);
    EXPECT_EQ(minute().text(), u"15"_s);
    EXPECT_TRUE(isRefused(minute()));
    // The field is worked in again.
    EXPECT_FALSE(isRefused(hour()));
}

TEST_F(TimePickerPopoverTest, RefusedTextIsReplacedWhenItsFieldIsLeft) {
    openOn(9h + 15min);
    press(Qt::Key_2);
    press(Qt::Key_1); // no hour of the dial; 2 was one
    press(Qt::Key_Tab);
    EXPECT_EQ(hour().text(), u"2"_s);
    EXPECT_TRUE(isRefused(hour()));
    EXPECT_EQ(timeOfDay(), 2h + 15min);
}

TEST_F(TimePickerPopoverTest, AnotherTimeTakesRefusalsBack) {
    openOn(9h + 15min);
    press(Qt::Key_Tab);
    paste(u"99"_s);
    press(Qt::Key_Tab);
    ASSERT_TRUE(isRefused(minute()));
    type(u"10:30"_s);
    EXPECT_FALSE(isRefused(minute()));
    paste(u"x"_s);
    press(Qt::Key_N, Qt::AltModifier);
    EXPECT_FALSE(isRefused(hour()));
}

TEST_F(TimePickerPopoverTest, ThePeriodMovesTheDateByTwelveHoursAndLeavesTheFocus) {
    openOn(9h + 15min);
    clickOn(period(u"PM"_s));
    EXPECT_TRUE(isPM());
    EXPECT_EQ(timeOfDay(), 21h + 15min);
    EXPECT_TRUE(hour().hasFocus());
    clickOn(period(u"AM"_s));
    EXPECT_EQ(timeOfDay(), 9h + 15min);
}

TEST_F(TimePickerPopoverTest, ThePeriodHasKeysOfItsOwn) {
    openOn(9h + 15min);
    press(Qt::Key_P, Qt::AltModifier);
    EXPECT_EQ(timeOfDay(), 21h + 15min);
    press(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(timeOfDay(), 9h + 15min);
    EXPECT_EQ(hour().text(), u"9"_s);
}

// The clock shows 13:00.

TEST_F(TimePickerPopoverTest, NowTakesHourAndMinuteAndLeavesTheDay) {
    openOn(9h + 15min + 10s);
    press(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(timeOfDay(), 13h);
    EXPECT_EQ(hour().text(), u"1"_s);
    EXPECT_EQ(hour().selectedText(), u"1"_s);
    EXPECT_EQ(minute().text(), u"00"_s);
    EXPECT_TRUE(isPM());
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    EXPECT_EQ(timeOfDay(), 13h + 1min);
    clock.set(clock.now() + 14min + 59s);
    clickOn(button(u"Now"_s));
    EXPECT_EQ(timeOfDay(), 13h + 14min);
    EXPECT_EQ(minute().selectedText(), u"14"_s);
}

TEST_F(TimePickerPopoverTest, ThePeriodIsNamed) {
    openOn(9h + 15min);
    EXPECT_NE(widgetByRole(window, QAccessible::Client, u"AM or PM"_s), nullptr);
}

TEST_F(TimePickerPopoverTest, ClickOnAFieldSelectsIt) {
    openOn(9h + 15min);
    clickOn(minute());
    EXPECT_TRUE(minute().hasFocus());
    EXPECT_EQ(minute().selectedText(), u"15"_s);
}

TEST_F(TimePickerPopoverTest, KeysAreTheWindowsOwnAgainOnceItIsClosed) {
    QLineEdit other(u"abc"_s, &window);
    openOn(9h + 15min);
    press(Qt::Key_Escape);
    other.setFocus();
    press(Qt::Key_Left);
    EXPECT_EQ(other.cursorPosition(), 2);
    EXPECT_EQ(timeOfDay(), 9h + 15min);
}

TEST_F(TimePickerPopoverTest, KeysAreTheWindowsOwnWhileItIsHidden) {
    QLineEdit other(u"abc"_s, &window);
    TimePickerPopover content(binding(), dependencies(), &window);
    showWindow();
    content.hide();
    other.setFocus();
    press(Qt::Key_Left);
    EXPECT_EQ(other.cursorPosition(), 2);
    content.show();
    press(Qt::Key_Right);
    EXPECT_EQ(content.focus(), TimePickerPopover::Field::Minute);
}

TEST_F(TimePickerPopoverTest, EachOpeningStartsAfresh) {
    openOn(9h + 15min);
    paste(u"x"_s);
    press(Qt::Key_Tab);
    press(Qt::Key_Escape);
    date = midnight + 14h + 2min;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    chip.click();
    EXPECT_EQ(hour().text(), u"2"_s);
    EXPECT_EQ(minute().text(), u"02"_s);
    EXPECT_TRUE(isPM());
    EXPECT_TRUE(hour().hasFocus());
}

TEST_F(TimePickerPopoverTest, TheDayStaysInAZoneThatIsADayAhead) {
    currentZone.set(*zones.zone(u"Pacific/Kiritimati"_s));
    openOn(0h); // 19:00 there
    EXPECT_EQ(hour().text(), u"7"_s);
    press(Qt::Key_P, Qt::AltModifier);
    paste(u"11"_s);
    EXPECT_EQ(timeOfDay(), 4h);
}

TEST_F(TimePickerPopoverTest, TheClockIsNotMirrored) {
    window.setLayoutDirection(Qt::RightToLeft);
    openOn(9h + 15min);
    EXPECT_LT(hour().mapToGlobal(QPoint()).x(), minute().mapToGlobal(QPoint()).x());
    EXPECT_LT(period(u"AM"_s).mapToGlobal(QPoint()).x(), period(u"PM"_s).mapToGlobal(QPoint()).x());
}

} // namespace
} // namespace quorvane
