// SPDX-License-Identifier: MIT
#include "ChipSteps.h"

#include <time/ZoneDatabase.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

CivilDay march(int day) {
    return CivilDay(std::chrono::year(2024) / 3 / day);
}

struct DayStep {
    CivilDay day;
    int amount;
    std::optional<CivilDay> earliest;
    CivilDay result;
};

class DayStepTest : public testing::TestWithParam<DayStep> {};

TEST_P(DayStepTest, EndsAtTheEarliestDay) {
    const auto [day, amount, earliest, result] = GetParam();
    EXPECT_EQ(movedByDays(day, amount, earliest), result);
}

INSTANTIATE_TEST_SUITE_P(
    ,
    DayStepTest,
    testing::Values(
        DayStep{march(9), 1, {}, march(10)},
        DayStep{march(9), -9, {}, march(1) - std::chrono::days(1)},
        DayStep{march(31), 1, {}, CivilDay(std::chrono::year(2024) / 4 / 1)},
        DayStep{march(9), -1, march(8), march(8)},
        DayStep{march(9), -1, march(9), march(9)},
        DayStep{march(9), -5, march(7), march(7)},
        DayStep{march(5), 1, march(9), march(9)},
        DayStep{march(5), -1, march(9), march(5)},
        DayStep{march(5), 7, march(9), march(12)}));

// From `date -u -d ... +%s`, in New York.
constexpr Instant beforeGap{1710053940};  // 2024-03-10T06:59:00Z, 01:59
constexpr Instant afterGap{1710054000};   // 03:00
constexpr Instant firstTime{1730613540};  // 2024-11-03T05:59:00Z, 01:59
constexpr Instant secondTime{1730613600}; // 01:00 again
constexpr Instant midnight{1709960400};   // 2024-03-09T05:00:00Z

struct MinuteStep {
    Instant date;
    int amount;
    std::optional<Instant> earliest;
    Instant result;
};

class ChipMinuteStepTest : public testing::TestWithParam<MinuteStep> {};

TEST_P(ChipMinuteStepTest, PassesAsTimeDoes) {
    const auto [date, amount, earliest, result] = GetParam();
    const auto newYork = ZoneDatabase().zone(QStringLiteral("America/New_York")).value();
    EXPECT_EQ(movedByMinutes(date, amount, earliest, newYork), result);
}

INSTANTIATE_TEST_SUITE_P(
    ,
    ChipMinuteStepTest,
    testing::Values(
        MinuteStep{midnight + 40.5s, 1, {}, midnight + 1min},
        MinuteStep{midnight + 40.5s, -1, {}, midnight + -1min},
        MinuteStep{beforeGap, 1, {}, afterGap},
        MinuteStep{afterGap, -1, {}, beforeGap},
        MinuteStep{firstTime, 1, {}, secondTime},
        MinuteStep{midnight, -1, midnight + 5h, midnight},
        MinuteStep{midnight + 40s, -1, midnight + 5h, midnight + 40s},
        MinuteStep{midnight + 1min, -1, midnight + 5h, midnight},
        MinuteStep{midnight, -1, midnight + -1h, midnight + -1min},
        MinuteStep{midnight + 23h + 59min, 1, midnight + 48h, midnight + 24h},
        MinuteStep{midnight + 9h, -1, midnight + 48h, midnight + 8h + 59min}));

} // namespace
} // namespace quorvane
