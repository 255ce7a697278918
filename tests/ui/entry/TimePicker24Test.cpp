// SPDX-License-Identifier: MIT
#include "TimePickerFixture.h"

#include <memory>

namespace quorvane {
namespace {

/// Where hours are counted to 23.
class TimePicker24Test : public TimePickerFixture {
protected:
    void openOn(Seconds timeOfDay, const char* locale = "de_DE") {
        m_chip = std::make_unique<TimeField>(binding(), MinDate(), dependencies(locale), &window);
        m_chip->show();
        date = midnight + timeOfDay;
        showWindow();
        m_chip->click();
    }

private:
    std::unique_ptr<TimeField> m_chip;
};

TEST_F(TimePicker24Test, ShowsHoursOfTwoDigitsAndNoHalfOfTheDay) {
    openOn(14h + 5min);
    EXPECT_EQ(hour().text(), u"14"_s);
    EXPECT_EQ(minute().text(), u"05"_s);
    EXPECT_EQ(widgetByRole(window, QAccessible::Client, u"AM or PM"_s), nullptr);
    press(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(timeOfDay(), 14h + 5min);
}

TEST_F(TimePicker24Test, ShowsMidnightAsTwoNoughts) {
    openOn(45s);
    EXPECT_EQ(hour().text(), u"00"_s);
    EXPECT_EQ(minute().text(), u"00"_s);
}

TEST_F(TimePicker24Test, HoursGoToTwentyThree) {
    openOn(9h + 15min);
    for (int typed = 0; typed < 24; ++typed) {
        paste(QString::number(typed));
        EXPECT_EQ(timeOfDay(), typed * 1h + 15min);
        EXPECT_FALSE(isRefused(hour()));
    }
    for (const auto& text : {u"24"_s, u"-1"_s, u"99"_s}) {
        paste(text);
        EXPECT_EQ(timeOfDay(), 23h + 15min);
        EXPECT_TRUE(isRefused(hour()));
    }
}

TEST_F(TimePicker24Test, StepsRoundTheDay) {
    openOn(23h + 15min);
    press(Qt::Key_Up);
    EXPECT_EQ(hour().text(), u"00"_s);
    EXPECT_EQ(timeOfDay(), 15min);
    press(Qt::Key_Down);
    EXPECT_EQ(hour().text(), u"23"_s);
    EXPECT_EQ(timeOfDay(), 23h + 15min);
    press(Qt::Key_9);
    press(Qt::Key_Up);
    EXPECT_EQ(hour().text(), u"10"_s);
}

TEST_F(TimePicker24Test, WholeTimesSetBothFields) {
    openOn(9h + 15min);
    type(u"2:05"_s);
    EXPECT_EQ(hour().text(), u"02"_s);
    EXPECT_EQ(timeOfDay(), 2h + 5min);
    paste(u"2:05 pm"_s);
    EXPECT_EQ(hour().text(), u"14"_s);
    EXPECT_EQ(timeOfDay(), 14h + 5min);
    paste(u"2.30 nachm."_s);
    EXPECT_EQ(timeOfDay(), 14h + 30min);
    paste(u"1830"_s);
    EXPECT_EQ(timeOfDay(), 18h + 30min);
}

} // namespace
} // namespace quorvane
