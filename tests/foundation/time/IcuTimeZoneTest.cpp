// SPDX-License-Identifier: MIT
#include "IcuRelease.h"
#include "ZoneOracle.h"

#include <time/IcuTimeZone.h>
#include <time/ZoneDatabase.h>

#include <gtest/gtest.h>
#include <unicode/gregocal.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr double march9 = 1710021900; // 2024-03-09T22:05:00Z

TimeZone zone(const char* identifier) {
    return ZoneDatabase().zone(QString::fromUtf8(identifier)).value();
}

struct Offset {
    int32_t raw = 0;
    int32_t daylight = 0;
};

Offset offsetOf(const icu::TimeZone& icuZone, UDate date, bool isLocal = false) {
    Offset offset;
    auto status = U_ZERO_ERROR;
    icuZone.getOffset(date, isLocal, offset.raw, offset.daylight, status);
    EXPECT_TRUE(U_SUCCESS(status));
    return offset;
}

TEST(IcuTimeZone, TotalOffsetsAreTheSystemsForEveryZone) {
    ASSERT_FALSE(oracleOffsets().empty()) << "no /usr/bin/python3 with zoneinfo";
    const ZoneDatabase zones;
    QString identifier;
    std::unique_ptr<icu::TimeZone> icuZone;
    for (const auto& expected : oracleOffsets()) {
        if (identifier != expected.identifier) {
            identifier = expected.identifier;
            icuZone = icuTimeZone(zones.zone(identifier).value());
        }
        const auto offset = offsetOf(*icuZone, expected.secondsSince1970 * 1000);
        ASSERT_EQ(offset.raw + offset.daylight, expected.secondsFromGMT * 1000)
            << identifier.toStdString() << " at " << qint64(expected.secondsSince1970);
    }
}

TEST(IcuTimeZone, ForOneInstantTheTotalIsTheSystemsToo) {
    ASSERT_FALSE(oracleOffsets().empty()) << "no /usr/bin/python3 with zoneinfo";
    const ZoneDatabase zones;
    auto current = ZoneDatabase::utc();
    for (const auto& expected : oracleOffsets()) {
        if (current.identifier() != expected.identifier)
            current = zones.zone(expected.identifier).value();
        const auto icuZone = icuTimeZoneAt(current, {expected.secondsSince1970});
        const auto offset = offsetOf(*icuZone, expected.secondsSince1970 * 1000);
        ASSERT_EQ(offset.raw + offset.daylight, expected.secondsFromGMT * 1000)
            << current.identifier().toStdString() << " at " << qint64(expected.secondsSince1970);
    }
}

TEST(IcuTimeZone, SplitsTheTotalAsIcuDoes) {
    const auto newYork = icuTimeZone(zone("America/New_York"));
    const auto winter = offsetOf(*newYork, march9 * 1000);
    EXPECT_EQ(winter.raw, -5 * 3600 * 1000);
    EXPECT_EQ(winter.daylight, 0);
    const auto summer = offsetOf(*newYork, (march9 + 86400) * 1000);
    EXPECT_EQ(summer.raw, -5 * 3600 * 1000);
    EXPECT_EQ(summer.daylight, 3600 * 1000);
    // Irish law calls summer the standard time; the names that ICU has are for the other reading.
    const auto dublin = offsetOf(*icuTimeZone(zone("Europe/Dublin")), 1721044800.0 * 1000);
    EXPECT_EQ(dublin.raw, 0);
    EXPECT_EQ(dublin.daylight, 3600 * 1000);
}

TEST(IcuTimeZone, ZoneThatIcuDoesNotKnowKeepsItsNameAndOffset) {
    const auto coyhaique = zone("America/Coyhaique");
    EXPECT_EQ(icuOwnTimeZone(coyhaique), nullptr);
    const auto icuZone = icuTimeZone(coyhaique);
    icu::UnicodeString identifier;
    EXPECT_EQ(icuZone->getID(identifier), icu::UnicodeString(u"America/Coyhaique"));
    // Summer in the south, in 2024 the last but one of summer time there.
    EXPECT_EQ(offsetOf(*icuZone, 1705320000.0 * 1000).daylight, 3600 * 1000);
}

TEST(IcuTimeZone, ZoneThatIcuHasLearntKeepsItsNameAndOffset) {
    const auto juarez = zone("America/Ciudad_Juarez");
    EXPECT_EQ(icuOwnTimeZone(juarez) != nullptr, byIcuRelease<bool>({{72, false}, {76, true}}));
    const auto icuZone = icuTimeZone(juarez);
    icu::UnicodeString identifier;
    EXPECT_EQ(icuZone->getID(identifier), icu::UnicodeString(u"America/Ciudad_Juarez"));
    EXPECT_EQ(offsetOf(*icuZone, 1721044800.0 * 1000).daylight, 3600 * 1000);
}

// The rules of icu::Calendar: a skipped local time is read with the offset before the gap, a
// repeated one is the later.
TEST(IcuTimeZone, ReadsLocalTimesAsIcuDoes) {
    const auto system = icuTimeZone(zone("America/New_York"));
    const auto own = icuOwnTimeZone(zone("America/New_York"));
    ASSERT_NE(own, nullptr);
    constexpr double hour = 3600.0 * 1000;
    const UDate gap = 1710036000.0 * 1000;     // 2024-03-10T02:00 without a zone
    const UDate overlap = 1730595600.0 * 1000; // 2024-11-03T01:00
    for (const UDate local :
         {gap - 1,
          gap,
          gap + hour / 2,
          gap + hour,
          overlap - 1,
          overlap,
          overlap + hour / 2,
          overlap + hour - 1,
          overlap + hour}) {
        const auto expected = offsetOf(*own, local, true);
        const auto actual = offsetOf(*system, local, true);
        EXPECT_EQ(actual.raw + actual.daylight, expected.raw + expected.daylight) << local;
    }
}

TEST(IcuTimeZone, ServesAsTheZoneOfACalendar) {
    auto status = U_ZERO_ERROR;
    icu::GregorianCalendar calendar(icuTimeZone(zone("America/Mexico_City")).release(), status);
    ASSERT_TRUE(U_SUCCESS(status));
    calendar.set(2024, UCAL_JULY, 15, 6, 0, 0);
    calendar.set(UCAL_MILLISECOND, 0);
    EXPECT_EQ(
        calendar.getTime(status), 1721044800.0 * 1000); // Mexico has no summer time since 2022
    const std::unique_ptr<icu::TimeZone> copy(calendar.getTimeZone().clone());
    EXPECT_TRUE(*copy == calendar.getTimeZone());
    EXPECT_FALSE(copy->useDaylightTime());
    EXPECT_TRUE(icuTimeZone(zone("Europe/Berlin"))->useDaylightTime());
    EXPECT_TRUE(icuTimeZone(zone("Australia/Sydney"))->useDaylightTime());
    EXPECT_EQ(icuTimeZone(zone("Europe/Berlin"))->getRawOffset(), 3600 * 1000);
    EXPECT_EQ(
        copy->getOffset(
            icu::GregorianCalendar::AD, 2024, UCAL_JULY, 15, UCAL_MONDAY, 6 * 3600 * 1000, status),
        -6 * 3600 * 1000);
}

TEST(IcuTimeZone, DatesAreFlooredToMilliseconds) {
    EXPECT_EQ(icuDate({0.0019}), 1);
    EXPECT_EQ(icuDate({-0.0001}), -1);
    EXPECT_EQ(icuDate({-1.5}), -1500);
}

} // namespace
} // namespace quorvane
