// SPDX-License-Identifier: MIT
#include "TimeEntry.h"

#include <time/ZoneDatabase.h>

#include <gtest/gtest.h>

#include <limits>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TimeZone zone(const char* identifier) {
    return ZoneDatabase().zone(QString::fromUtf8(identifier)).value();
}

// Midnight of 2024-03-09 in New York, which is 05:00Z.
constexpr Instant midnight{1709960400};

struct Loaded {
    Seconds timeOfDay;
    TimeTexts texts;
};

class TimeLoadTest : public testing::TestWithParam<Loaded> {};

TEST_P(TimeLoadTest, ShowsTheTimeOnTheDial) {
    const auto [timeOfDay, texts] = GetParam();
    EXPECT_EQ(loadedTime(midnight + timeOfDay, zone("America/New_York")), texts);
}

INSTANTIATE_TEST_SUITE_P(
    ,
    TimeLoadTest,
    testing::Values(
        Loaded{0h, {u"12"_s, u"00"_s, false}},
        Loaded{30min + 45s, {u"12"_s, u"30"_s, false}},
        Loaded{1h + 5min, {u"1"_s, u"05"_s, false}},
        Loaded{11h + 59min + 59.75s, {u"11"_s, u"59"_s, false}},
        Loaded{12h + 5min, {u"12"_s, u"05"_s, true}},
        Loaded{13h + 7min, {u"1"_s, u"07"_s, true}},
        Loaded{23h + 59min, {u"11"_s, u"59"_s, true}}));

struct TimeOfNow {
    Instant now;
    Instant date;
    Instant result;
};

class TimeOfNowTest : public testing::TestWithParam<TimeOfNow> {};

TEST_P(TimeOfNowTest, TakesTheMinuteThatClocksShowOnTheDaysOwnTerms) {
    const auto [now, date, result] = GetParam();
    EXPECT_EQ(withTimeOf(now, date, zone("America/New_York")), result);
}

// From `date -u -d ... +%s`.
constexpr Instant november20{1795197600}; // 2026-11-20T18:00:00Z, 13:00
constexpr Instant november3{1730615420};  // 2024-11-03T06:30:20Z, 01:30:20 for the second time

INSTANTIATE_TEST_SUITE_P(
    ,
    TimeOfNowTest,
    testing::Values(
        TimeOfNow{november20, midnight + 9h + 15s, midnight + 13h},
        TimeOfNow{november20 + 59.5s, midnight, midnight + 13h},
        // That hour occurs twice only on the day itself; 2024-11-03T05:30:00Z is the first time.
        TimeOfNow{november3, midnight, midnight + 1h + 30min},
        TimeOfNow{november3, Instant{1730610000}, Instant{1730615400}},
        TimeOfNow{november20 + -12h, Instant{1730610000}, Instant{1730610000}},
        // 02:30 is skipped on 10 March 2024 and becomes 03:30, 07:30Z.
        TimeOfNow{november20 + -10h + -30min, Instant{1710050000}, Instant{1710055800}}));

struct Saved {
    TimeTexts texts;
    std::optional<Seconds> timeOfDay;
};

class TimeSaveTest : public testing::TestWithParam<Saved> {};

TEST_P(TimeSaveTest, WritesWhatIsATimeAndNothingElse) {
    const auto [texts, timeOfDay] = GetParam();
    const auto saved = savedTime(texts, midnight + 9h + 15min + 45s, zone("America/New_York"));
    EXPECT_EQ(saved, timeOfDay ? std::optional(midnight + *timeOfDay) : std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    ,
    TimeSaveTest,
    testing::Values(
        Saved{{u"9"_s, u"15"_s, false}, 9h + 15min},
        Saved{{u"9"_s, u"15"_s, true}, 21h + 15min},
        Saved{{u"7"_s, u"15"_s, true}, 19h + 15min},
        Saved{{u"+7"_s, u"15"_s, true}, 19h + 15min},
        Saved{{u"12"_s, u"00"_s, false}, 0h},
        Saved{{u"12"_s, u"00"_s, true}, 12h},
        Saved{{u"1"_s, u"00"_s, true}, 13h},
        Saved{{u"9"_s, u"5"_s, false}, 9h + 5min},
        Saved{{u"9"_s, u"59"_s, false}, 9h + 59min},
        Saved{{u"0"_s, u"15"_s, false}, std::nullopt},
        Saved{{u"13"_s, u"15"_s, false}, std::nullopt},
        Saved{{u"-3"_s, u"15"_s, false}, std::nullopt},
        Saved{{u"9"_s, u"60"_s, false}, std::nullopt},
        Saved{{u"9"_s, u"-1"_s, false}, std::nullopt},
        Saved{{u""_s, u"15"_s, false}, std::nullopt},
        Saved{{u"9"_s, u""_s, false}, std::nullopt},
        Saved{{u"nine"_s, u"15"_s, false}, std::nullopt},
        Saved{{u"9"_s, u"+"_s, false}, std::nullopt},
        Saved{{u"9223372036854775807"_s, u"15"_s, true}, std::nullopt},
        Saved{{u"9"_s, u"-9223372036854775808"_s, true}, std::nullopt}));

TEST(TimeEntryTest, CountsTwentyFourHoursWhereTheLocaleDoes) {
    const auto newYork = zone("America/New_York");
    constexpr auto cycle = HourCycle::TwentyFour;
    for (int hour = 0; hour < 24; ++hour) {
        const auto date = midnight + hour * 1h + 5min;
        const auto loaded = loadedTime(date, newYork, cycle);
        EXPECT_EQ(loaded.hourText, u"%1"_s.arg(hour, 2, 10, QChar(u'0')));
        EXPECT_EQ(savedTime(loaded, midnight, newYork, cycle), date);
        for (const auto step : {-25, -1, 0, 1, 7, 240}) {
            const int stepped = ((hour + step) % 24 + 24) % 24;
            EXPECT_EQ(
                steppedHour(loaded.hourText, step, cycle),
                u"%1"_s.arg(stepped, 2, 10, QChar(u'0')));
        }
    }
    EXPECT_EQ(savedTime({u"24"_s, u"00"_s}, midnight, newYork, cycle), std::nullopt);
    EXPECT_EQ(savedTime({u"-1"_s, u"00"_s}, midnight, newYork, cycle), std::nullopt);
    EXPECT_EQ(steppedHour(u"x"_s, 1, cycle), u"01"_s);
    EXPECT_EQ(steppedHour(u"30"_s, 1, cycle), u"07"_s);
}

TEST(TimeEntryTest, OpeningDropsTheSecondsAndNothingElse) {
    const auto date = midnight + 30min + 45.5s;
    const auto newYork = zone("America/New_York");
    EXPECT_EQ(savedTime(loadedTime(date, newYork), date, newYork), midnight + 30min);
}

TEST(TimeEntryTest, OpeningInARepeatedHourKeepsItsOffset) {
    // 2024-11-03, 01:20 in New York, at 05:20Z and again at 06:20Z.
    const auto newYork = zone("America/New_York");
    for (const auto date : {Instant{1730611200}, Instant{1730614800}})
        EXPECT_EQ(savedTime(loadedTime(date, newYork), date, newYork), date);
}

TEST(TimeEntryTest, SkippedTimeIsTakenAfterTheGap) {
    // 2024-03-10, 02:30 in New York, becomes 03:30 EDT.
    const TimeTexts texts{u"2"_s, u"30"_s, false};
    EXPECT_EQ(savedTime(texts, midnight + 34h, zone("America/New_York")), Instant{1710055800});
}

struct Step {
    QString before;
    qint64 step;
    QString after;
};

class HourStepTest : public testing::TestWithParam<Step> {};

TEST_P(HourStepTest, GoesRoundTheDial) {
    const auto& [before, step, after] = GetParam();
    EXPECT_EQ(steppedHour(before, step), after);
}

// The limits of 64 bits are 7 and -8 modulo 12.
INSTANTIATE_TEST_SUITE_P(
    ,
    HourStepTest,
    testing::Values(
        Step{u"12"_s, 1, u"1"_s},
        Step{u"1"_s, -1, u"12"_s},
        Step{u"11"_s, 1, u"12"_s},
        Step{u"12"_s, -1, u"11"_s},
        Step{u"09"_s, 1, u"10"_s},
        Step{u"15"_s, 1, u"4"_s},
        Step{u"0"_s, 1, u"1"_s},
        Step{u"0"_s, -1, u"11"_s},
        Step{u"-3"_s, 1, u"10"_s},
        Step{u""_s, 1, u"1"_s},
        Step{u"x"_s, -1, u"11"_s},
        Step{u"9223372036854775807"_s, 1, u"8"_s},
        Step{u"-9223372036854775808"_s, -1, u"3"_s},
        Step{u"-9223372036854775808"_s, std::numeric_limits<qint64>::min(), u"8"_s}));

class MinuteStepTest : public testing::TestWithParam<Step> {};

TEST_P(MinuteStepTest, GoesRoundTheHour) {
    const auto& [before, step, after] = GetParam();
    EXPECT_EQ(steppedMinute(before, step), after);
}

// The limits of 64 bits are 7 and -8 modulo 60.
INSTANTIATE_TEST_SUITE_P(
    ,
    MinuteStepTest,
    testing::Values(
        Step{u"59"_s, 1, u"00"_s},
        Step{u"00"_s, -1, u"59"_s},
        Step{u"5"_s, 1, u"06"_s},
        Step{u"30"_s, -1, u"29"_s},
        Step{u"100"_s, -1, u"39"_s},
        Step{u"-1"_s, 1, u"00"_s},
        Step{u""_s, 1, u"01"_s},
        Step{u"x"_s, -1, u"59"_s},
        Step{u"9223372036854775807"_s, 1, u"08"_s},
        Step{u"-9223372036854775808"_s, -1, u"51"_s}));

} // namespace
} // namespace quorvane
