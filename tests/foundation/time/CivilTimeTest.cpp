// SPDX-License-Identifier: MIT
#include <time/CivilTime.h>
#include <time/ZoneDatabase.h>

#include <gtest/gtest.h>

#include <limits>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

TimeZone zone(const char* identifier) {
    return ZoneDatabase().zone(QString::fromUtf8(identifier)).value();
}

CivilDay day(int year, int month, int dayOfMonth) {
    return CivilDay(std::chrono::year(year) / month / dayOfMonth);
}

// Instants below are from `date -u -d ... +%s`.
constexpr Instant march9{1710021900};    // 2024-03-09T22:05:00Z
constexpr Instant november3{1730610000}; // 2024-11-03T05:00:00Z: New York 01:00, still EDT

TEST(CivilTimeTest, IsWhatTheZonesClocksShow) {
    EXPECT_EQ(
        civilTime(march9, zone("America/New_York")), (CivilTime{day(2024, 3, 9), 17h + 5min}));
    EXPECT_EQ(civilTime(march9, zone("Asia/Kathmandu")), (CivilTime{day(2024, 3, 10), 3h + 50min}));
}

TEST(CivilTimeTest, TakesTheSecondThatHasBegun) {
    EXPECT_EQ(civilTime({-0.25}, ZoneDatabase::utc()), (CivilTime{day(1969, 12, 31), 24h - 1s}));
    EXPECT_EQ(civilTime({0.75}, ZoneDatabase::utc()), (CivilTime{day(1970, 1, 1), 0s}));
}

TEST(CivilTimeTest, AMinuteBeginsWhereTheZonesClocksBeginIt) {
    EXPECT_EQ(startOfMinute({1710021959.75}, zone("Asia/Kathmandu")), march9);
    EXPECT_EQ(startOfMinute(march9, zone("Asia/Kathmandu")), march9);
    EXPECT_EQ(startOfMinute({-0.25}, ZoneDatabase::utc()), Instant{-60});
    // 44 minutes and 30 seconds behind Greenwich until 1972: 23:15:30 at the beginning of 1970.
    EXPECT_EQ(startOfMinute({0}, zone("Africa/Monrovia")), Instant{-30});
}

TEST(CivilTimeTest, HoldsForNumbersThatAreNoInstants) {
    const auto utc = ZoneDatabase::utc();
    EXPECT_EQ(civilDay({std::numeric_limits<double>::quiet_NaN()}, utc), day(1970, 1, 1));
    EXPECT_GT(civilDay({1e300}, utc), day(9999, 1, 1));
    EXPECT_LT(civilDay({-std::numeric_limits<double>::infinity()}, utc), day(-9999, 1, 1));
    EXPECT_LT(movedToDay({1e300}, day(2024, 3, 9), utc).secondsSince1970, 2e9);
}

TEST(CivilTimeTest, SkippedTimeTakesTheOffsetFromBeforeTheGap) {
    // 2024-03-10 02:30 in New York, which becomes 03:30 EDT, 07:30Z.
    const auto newYork = zone("America/New_York");
    const CivilTime skipped{day(2024, 3, 10), 2h + 30min};
    EXPECT_EQ(instantAt(skipped, newYork, march9), Instant{1710055800});
    EXPECT_EQ(instantAt(skipped, newYork, november3), Instant{1710055800});
}

TEST(CivilTimeTest, SkippedDayTakesTheOffsetFromBeforeItToo) {
    // Samoa had no 30 December 2011; 10:00 there would have been 20:00Z.
    EXPECT_EQ(
        instantAt({day(2011, 12, 30), 10h}, zone("Pacific/Apia"), march9), Instant{1325275200});
}

TEST(CivilTimeTest, RepeatedTimeKeepsThePresentOffset) {
    // 2024-11-03 01:30 in New York is 05:30Z and 06:30Z.
    const auto newYork = zone("America/New_York");
    const CivilTime repeated{day(2024, 11, 3), 1h + 30min};
    EXPECT_EQ(instantAt(repeated, newYork, november3), Instant{1730611800});
    EXPECT_EQ(instantAt(repeated, newYork, november3 + 2h), Instant{1730615400});
}

TEST(CivilTimeTest, RepeatedTimeIsTheFirstWhenThePresentOffsetIsNeither) {
    // Seen from the standing time of 1883, four minutes off.
    EXPECT_EQ(
        instantAt({day(2024, 11, 3), 1h + 30min}, zone("America/New_York"), {-3e9}),
        Instant{1730611800});
}

TEST(CivilTimeTest, AnotherDayKeepsTheTimeOfDayToTheFraction) {
    const auto newYork = zone("America/New_York");
    // 17:05:00.25 EST becomes 17:05:00.25 EDT, 21:05Z.
    EXPECT_EQ(movedToDay(march9 + 250ms, day(2024, 3, 11), newYork), Instant{1710191100.25});
    EXPECT_EQ(movedToDay(march9 + 250ms, day(2024, 3, 9), newYork), march9 + 250ms);
}

TEST(CivilTimeTest, TheSameDayMovesNothingInARepeatedHour) {
    const auto newYork = zone("America/New_York");
    for (const auto instant : {november3 + 1800s, november3 + 5400s})
        EXPECT_EQ(movedToDay(instant, day(2024, 11, 3), newYork), instant);
}

} // namespace
} // namespace quorvane
