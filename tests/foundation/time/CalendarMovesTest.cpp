// SPDX-License-Identifier: MIT
#include <time/CalendarMoves.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

CivilDay day(int year, int month, int dayOfMonth) {
    return CivilDay(std::chrono::year(year) / month / dayOfMonth);
}

UserLocale locale(const char* name) {
    return UserLocale::named(QString::fromUtf8(name));
}

TEST(CalendarMovesTest, MonthsKeepTheDayOrTakeTheLast) {
    const auto english = locale("en_US");
    EXPECT_EQ(movedByMonths(day(2026, 11, 21), 1, english), day(2026, 12, 21));
    EXPECT_EQ(movedByMonths(day(2026, 12, 21), 1, english), day(2027, 1, 21));
    EXPECT_EQ(movedByMonths(day(2026, 3, 31), -1, english), day(2026, 2, 28));
    EXPECT_EQ(movedByMonths(day(2024, 1, 31), 1, english), day(2024, 2, 29));
    EXPECT_EQ(movedByMonths(day(1969, 12, 31), -1, english), day(1969, 11, 30));
}

TEST(CalendarMovesTest, MonthsAreThoseOfTheLocalesCalendar) {
    // From 1 Farvardin, which has 31 days, to 1 Ordibehesht; from 29 Esfand to 29 Bahman.
    EXPECT_EQ(movedByMonths(day(2026, 3, 21), 1, locale("fa_IR")), day(2026, 4, 21));
    EXPECT_EQ(movedByMonths(day(2026, 3, 20), -1, locale("fa_IR")), day(2026, 2, 18));
    EXPECT_EQ(startOfMonth(day(2026, 3, 25), locale("fa_IR")), day(2026, 3, 21));
    EXPECT_EQ(startOfMonth(day(2026, 3, 25), locale("th_TH")), day(2026, 3, 1));
}

TEST(CalendarMovesTest, YearsKeepTheDayOrTakeTheMonthsLast) {
    EXPECT_EQ(movedByYears(day(2024, 2, 29), 1, locale("en_US")), day(2025, 2, 28));
    EXPECT_EQ(movedByYears(day(2024, 2, 29), -4, locale("en_US")), day(2020, 2, 29));
    EXPECT_EQ(movedByYears(day(2026, 3, 21), 1, locale("th_TH")), day(2027, 3, 21));
    // 30 Esfand 1403, the last day of a leap year, and 29 Esfand 1404.
    EXPECT_EQ(movedByYears(day(2025, 3, 20), 1, locale("fa_IR")), day(2026, 3, 20));
}

struct Week {
    const char* locale;
    CivilDay start;
};

class CalendarMovesWeekTest : public testing::TestWithParam<Week> {};

TEST_P(CalendarMovesWeekTest, BeginsWhereTheLocalesDo) {
    const auto [name, start] = GetParam();
    for (int i = 0; i < 7; ++i) {
        const auto inWeek = start + std::chrono::days(i);
        EXPECT_EQ(startOfWeek(inWeek, locale(name)), start);
        EXPECT_EQ(endOfWeek(inWeek, locale(name)), start + std::chrono::days(6));
    }
}

INSTANTIATE_TEST_SUITE_P(
    ,
    CalendarMovesWeekTest,
    testing::Values(
        Week{"en_US", day(2026, 11, 15)},
        Week{"de_DE", day(2026, 11, 16)},
        Week{"fa_IR", day(2026, 11, 14)},
        Week{"en_US", day(1969, 12, 28)}));

} // namespace
} // namespace quorvane
