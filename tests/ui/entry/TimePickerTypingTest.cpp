// SPDX-License-Identifier: MIT
#include "TimePickerFixture.h"

namespace quorvane {
namespace {

/// Whole times and other texts, in the field of the hour.
class TimePickerTypingTest : public TimePickerFixture {};

TEST_F(TimePickerTypingTest, WholeTimeTypedInTheHourSetsBothFieldsWithItsLastDigit) {
    openOn(9h + 15min);
    type(u"14:0"_s);
    EXPECT_EQ(hour().text(), u"14:0"_s);
    EXPECT_EQ(minute().text(), u"15"_s);
    type(u"5"_s);
    EXPECT_EQ(hour().text(), u"2"_s);
    EXPECT_EQ(minute().text(), u"05"_s);
    EXPECT_TRUE(isPM());
    EXPECT_EQ(timeOfDay(), 14h + 5min);
    EXPECT_TRUE(hour().hasFocus());
    EXPECT_FALSE(isRefused(hour()));
}

TEST_F(TimePickerTypingTest, FourDigitsAreAWholeTime) {
    openOn(15h + 20min);
    type(u"1405"_s);
    EXPECT_EQ(timeOfDay(), 14h + 5min);
    hour().selectAll();
    type(u"0030"_s);
    EXPECT_EQ(hour().text(), u"12"_s);
    EXPECT_FALSE(isPM());
    EXPECT_EQ(timeOfDay(), 30min);
}

TEST_F(TimePickerTypingTest, WholeTimeOnTheDialKeepsTheHalfOfTheDay) {
    openOn(15h + 20min);
    type(u"9:45"_s);
    EXPECT_EQ(timeOfDay(), 21h + 45min);
    hour().selectAll();
    type(u"12:30"_s);
    EXPECT_EQ(timeOfDay(), 12h + 30min);
    hour().selectAll();
    type(u"0:10"_s);
    EXPECT_EQ(timeOfDay(), 10min);
}

TEST_F(TimePickerTypingTest, WordMayBeTypedAfterAWholeTime) {
    openOn(9h + 15min);
    type(u"2:05 pm"_s);
    EXPECT_TRUE(isPM());
    EXPECT_EQ(timeOfDay(), 14h + 5min);
    EXPECT_FALSE(isRefused(hour()));
    press(Qt::Key_Return);
    EXPECT_EQ(timeOfDay(), 14h + 5min);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(TimePickerTypingTest, WordInTheHourYieldsToAChosenHalf) {
    openOn(9h + 15min);
    type(u"7 p"_s);
    EXPECT_EQ(timeOfDay(), 19h + 15min);
    press(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(hour().text(), u"7"_s);
    EXPECT_EQ(timeOfDay(), 7h + 15min);
    hour().selectAll();
    type(u"7 p"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(hour().text(), u"8"_s);
    EXPECT_EQ(timeOfDay(), 20h + 15min);
}

TEST_F(TimePickerTypingTest, PastedTimeIsTakenAtOnce) {
    openOn(9h + 15min);
    paste(u"2:05 pm"_s);
    EXPECT_EQ(hour().text(), u"2"_s);
    EXPECT_EQ(minute().text(), u"05"_s);
    EXPECT_EQ(timeOfDay(), 14h + 5min);
    paste(u"11.30"_s);
    EXPECT_EQ(timeOfDay(), 23h + 30min);
}

TEST_F(TimePickerTypingTest, DigitsOfOtherScriptsCountAsDigits) {
    openOn(9h + 15min);
    paste(u"٧"_s);
    EXPECT_EQ(timeOfDay(), 7h + 15min);
    press(Qt::Key_Up);
    EXPECT_EQ(hour().text(), u"8"_s);
    paste(u"۱۴:۰۵"_s);
    EXPECT_EQ(timeOfDay(), 14h + 5min);
    press(Qt::Key_Tab);
    paste(u"３０"_s);
    EXPECT_EQ(timeOfDay(), 14h + 30min);
    EXPECT_FALSE(isRefused(minute()));
}

TEST_F(TimePickerTypingTest, LongerTextIsShownSmallerThanTheNumber) {
    openOn(9h + 15min);
    const auto large = hour().font().pixelSize();
    type(u"14:0"_s);
    EXPECT_LT(hour().font().pixelSize(), large);
    EXPECT_LE(QFontMetrics(hour().font()).horizontalAdvance(u"14:0"_s), hour().width() - 6);
    type(u"5"_s);
    EXPECT_EQ(hour().font().pixelSize(), large);
}

TEST_F(TimePickerTypingTest, SignedHoursAreNumbers) {
    openOn(15h + 20min);
    paste(u"+7"_s);
    EXPECT_EQ(timeOfDay(), 19h + 20min);
    paste(u"-3"_s);
    EXPECT_EQ(timeOfDay(), 19h + 20min);
    press(Qt::Key_Up);
    EXPECT_EQ(hour().text(), u"10"_s);
    EXPECT_EQ(timeOfDay(), 22h + 20min);
}

TEST_F(TimePickerTypingTest, LongTextsAreTakenOrRefusedWhole) {
    openOn(15h + 20min);
    const auto seven = QString(9'999, u'0') + u'7';
    paste(seven);
    EXPECT_EQ(timeOfDay(), 19h + 20min);
    for (const auto& text : {seven + u'x', QString(1'000'000, u'1'), QString(1'000'000, u'x')}) {
        paste(text);
        EXPECT_EQ(hour().text(), seven);
        EXPECT_EQ(timeOfDay(), 19h + 20min);
    }
}

} // namespace
} // namespace quorvane
