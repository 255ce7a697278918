// SPDX-License-Identifier: MIT
#include "Samples.h"

#include <composition/RangeLength.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace samples;
using namespace std::chrono_literals;

// 17:05 in New York, the evening before its clocks are put forward.
constexpr Instant start = march9;

struct Row {
    Seconds distance;
    const char* text; ///< in UTC
    const char* newYork;
};

class RangeLengthTest : public testing::TestWithParam<Row> {};

TEST_P(RangeLengthTest, CountsDaysOfTheCalendarAndThenWhatPasses) {
    const auto [distance, text, newYork] = GetParam();
    const auto inZone = [distance = distance](const char* name) {
        return RangeLength::between(start, start + distance, zone(name)).text(locale("en_US"));
    };
    EXPECT_EQ(inZone("UTC"), QString::fromUtf8(text));
    EXPECT_EQ(inZone("America/New_York"), QString::fromUtf8(newYork));
}

// timedelta of the wall times of CPython's zoneinfo.
INSTANTIATE_TEST_SUITE_P(
    ,
    RangeLengthTest,
    testing::Values(
        Row{0s, "0 min", "0 min"},
        Row{59s, "0 min", "0 min"},
        Row{60s, "1 min", "1 min"},
        Row{90min, "1 h 30 min", "1 h 30 min"},
        Row{1h, "1 h", "1 h"},
        Row{23h, "23 h", "1 d"},
        Row{24h, "1 d", "1 d 1 h"},
        Row{76h, "3 d 4 h", "3 d 5 h"},
        Row{24h + 1min, "1 d 1 min", "1 d 1 h 1 min"},
        Row{-1min, "−1 min", "−1 min"},
        Row{-2h, "−2 h", "−2 h"},
        Row{-50h, "−2 d 2 h", "−2 d 2 h"},
        Row{8784h, "366 d", "366 d 1 h"}));

TEST(RangeLength, SecondsThatNobodySeesDoNotCount) {
    const auto utc = ZoneDatabase::utc();
    EXPECT_EQ(
        RangeLength::between(start + 59.5s, start + 1h, utc),
        RangeLength::between(start, start + 1h, utc));
    EXPECT_FALSE(RangeLength::between(start + 30s, start, utc).isNegative);
}

TEST(RangeLength, WithoutTimesItCountsDays) {
    const auto newYork = zone("America/New_York");
    const auto text = [&](Seconds distance) {
        return RangeLength::daysBetween(start, start + distance, newYork).text(locale("en_US"));
    };
    EXPECT_EQ(text(6h), u"0 d"_s);
    EXPECT_EQ(text(7h), u"1 d"_s); // 01:05
    EXPECT_EQ(text(-48h), u"\u22122 d"_s);
}

TEST(RangeLength, HasTheLocalesDigits) {
    const auto length = RangeLength::between(start, start + 28h, ZoneDatabase::utc());
    EXPECT_EQ(length.text(locale("ar_EG")), u"١ d ٤ h"_s);
    EXPECT_EQ(length.text(locale("de_DE")), u"1 d 4 h"_s);
}

TEST(RangeLength, IsASentenceForThoseWhoHearIt) {
    const auto words = [](Seconds distance, const char* name = "en_US") {
        return RangeLength::between(start, start + distance, ZoneDatabase::utc())
            .words(locale(name));
    };
    EXPECT_EQ(words(76h), u"Lasts 3 days, 4 hours"_s);
    EXPECT_EQ(words(-61min), u"Ends 1 hour, 1 minute before it begins"_s);
    EXPECT_EQ(words(0s), u"Lasts 0 minutes"_s);
    // The unit's name as CLDR has it.
    EXPECT_EQ(words(4h, "de_DE"), u"Lasts 4 Stunden"_s);
    const auto utc = ZoneDatabase::utc();
    EXPECT_EQ(
        RangeLength::daysBetween(start, start, utc).words(locale("en_US")),
        u"Begins and ends on the same day"_s);
    EXPECT_EQ(
        RangeLength::daysBetween(start, start + -48h, utc).words(locale("en_US")),
        u"Ends 2 days before it begins"_s);
}

} // namespace
} // namespace quorvane
