// SPDX-License-Identifier: MIT
#include "IcuRelease.h"

#include <time/MonthGrid.h>

#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

CivilDay day(int year, unsigned month, unsigned dayOfMonth) {
    return CivilDay(
        std::chrono::year(year) / static_cast<int>(month) / static_cast<int>(dayOfMonth));
}

MonthGrid grid(CivilDay inMonth, const char* locale) {
    return monthGrid(inMonth, UserLocale::named(QString::fromUtf8(locale)));
}

QString weekdays(const MonthGrid& grid) {
    return QStringList(grid.weekdayNames.begin(), grid.weekdayNames.end()).join(u' ');
}

/// In the oracle's form.
QString weeks(const MonthGrid& grid) {
    QList<QStringList> rows(
        grid.weekCount(), {u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s});
    for (std::size_t i = 0; i < grid.days.size(); ++i)
        rows[grid.rowOf(i)][grid.columnOf(i)] = grid.days[i].number;
    QStringList result;
    for (const auto& row : rows)
        result.append(row.join(u','));
    return result.join(u'/');
}

TEST(MonthGridTest, HasTheDaysWhereOtherCalendarsHaveThem) {
    QProcess python;
    python.start(u"/usr/bin/python3"_s, {QString::fromUtf8(MONTH_ORACLE)}, QIODevice::ReadOnly);
    ASSERT_TRUE(python.waitForFinished() && python.exitCode() == 0);
    const auto lines = QString::fromUtf8(python.readAllStandardOutput()).split(u'\n');
    ASSERT_GT(lines.size(), 200);
    for (const auto& line : lines) {
        const auto fields = line.split(u' ');
        if (fields.size() != 4)
            continue;
        const auto middle = day(fields[0].toInt(), fields[1].toUInt(), 15);
        const auto* locale = fields[2] == "6"_L1 ? "en_US" : "en_GB";
        EXPECT_EQ(weeks(grid(middle, locale)), fields[3]) << line.toStdString();
    }
}

TEST(MonthGridTest, IsTheSameFromItsFirstAndItsLastDay) {
    EXPECT_EQ(weeks(grid(day(2026, 11, 1), "en_US")), weeks(grid(day(2026, 11, 30), "en_US")));
    EXPECT_EQ(grid(day(2026, 11, 1), "en_US").days.size(), 30U);
}

TEST(MonthGridTest, MonthOfFourWeeksHasFour) {
    EXPECT_EQ(grid(day(2026, 2, 1), "en_US").weekCount(), 4);
    EXPECT_EQ(grid(day(2026, 8, 1), "en_US").weekCount(), 6);
}

struct Words {
    const char* locale;
    CivilDay day;
    QString title;
    QString weekdays;
    QString number;
    QString fullText;
};

class MonthGridWordsTest : public testing::TestWithParam<Words> {};

TEST_P(MonthGridWordsTest, AreThoseOfTheLocale) {
    const auto& expected = GetParam();
    const auto month = grid(expected.day, expected.locale);
    EXPECT_EQ(month.title, expected.title);
    EXPECT_EQ(weekdays(month), expected.weekdays);
    const auto& found = *std::ranges::find(month.days, expected.day, &MonthGridDay::day);
    EXPECT_EQ(found.number, expected.number);
    EXPECT_EQ(found.fullText, expected.fullText);
}

// The words are those of Intl in Node 20, whose locale data are another release's.
INSTANTIATE_TEST_SUITE_P(
    ,
    MonthGridWordsTest,
    testing::Values(
        Words{
            "en_US",
            day(2026, 11, 24),
            u"November 2026"_s,
            u"S M T W T F S"_s,
            u"24"_s,
            u"Tuesday, November 24, 2026"_s},
        Words{
            "de_DE",
            day(2024, 3, 9),
            u"März 2024"_s,
            u"M D M D F S S"_s,
            u"9"_s,
            u"Samstag, 9. März 2024"_s},
        Words{
            "ar_EG",
            day(2026, 11, 24),
            u"نوفمبر ٢٠٢٦"_s,
            u"س ح ن ث ر خ ج"_s,
            u"٢٤"_s,
            u"الثلاثاء، ٢٤ نوفمبر ٢٠٢٦"_s},
        Words{
            "fa_IR",
            day(2026, 3, 21),
            u"۱۴۰۵ فروردین"_s,
            u"ش ی د س چ پ ج"_s,
            u"۱"_s,
            u"۱۴۰۵ فروردین ۱, شنبه"_s},
        Words{
            "th_TH",
            day(2026, 11, 24),
            u"พฤศจิกายน 2569"_s,
            u"อา จ อ พ พฤ ศ ส"_s,
            u"24"_s,
            u"วันอังคารที่ 24 พฤศจิกายน พ.ศ. 2569"_s}));

TEST(MonthGridTest, PersianMonthsHaveTheirOwnLengths) {
    const auto farvardin = grid(day(2026, 3, 21), "fa_IR"); // the new year of 1405
    EXPECT_EQ(farvardin.days.size(), 31U);
    EXPECT_EQ(farvardin.firstColumn, 0); // a Saturday, with which the week begins there
    EXPECT_EQ(farvardin.days.front().day, day(2026, 3, 21));
    EXPECT_EQ(grid(day(2026, 3, 20), "fa_IR").days.size(), 29U);
}

TEST(MonthGridTest, IslamicMonthsAreThoseOfUmmAlQura) {
    const auto ramadan = grid(day(2026, 3, 1), "ar_SA@calendar=islamic-umalqura"); // of 1447
    EXPECT_EQ(ramadan.days.front().day, day(2026, 2, 18));
    EXPECT_EQ(ramadan.days.back().day, day(2026, 3, 19));
}

// The newer locale data know that Saudi Arabia counts by the Gregorian calendar now.
TEST(MonthGridTest, SaudiMonthsAreThoseOfTheReleasesCalendar) {
    const auto month = grid(day(2026, 3, 1), "ar_SA");
    EXPECT_EQ(
        month.days.front().day,
        byIcuRelease<CivilDay>({{72, day(2026, 2, 18)}, {76, day(2026, 3, 1)}}));
    EXPECT_EQ(
        month.days.back().day,
        byIcuRelease<CivilDay>({{72, day(2026, 3, 19)}, {76, day(2026, 3, 31)}}));
}

TEST(MonthGridTest, MonthOfTheGregorianReformHasItsTwentyOneDays) {
    EXPECT_EQ(
        weeks(grid(day(1582, 10, 20), "en_US")),
        u"0,1,2,3,4,15,16/17,18,19,20,21,22,23/24,25,26,27,28,29,30/31,0,0,0,0,0,0"_s);
}

TEST(MonthGridTest, TellsWhichDaysItHolds) {
    const auto november = grid(day(2026, 11, 24), "en_US");
    EXPECT_TRUE(november.contains(day(2026, 11, 1)));
    EXPECT_TRUE(november.contains(day(2026, 11, 30)));
    EXPECT_FALSE(november.contains(day(2026, 10, 31)));
    EXPECT_FALSE(november.contains(day(2026, 12, 1)));
}

TEST(MonthGridTest, EndsWhereIcusCalendarsEnd) {
    EXPECT_LE(grid(CivilDay(std::chrono::days(100'000'000)), "en_US").days.size(), 32U);
}

} // namespace
} // namespace quorvane
