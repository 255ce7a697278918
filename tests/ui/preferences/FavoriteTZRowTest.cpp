// SPDX-License-Identifier: MIT
#include "FavoriteTZRow.h"

#include <time/ZoneDatabase.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr Instant winter{1705320000}; // 2024-01-15T12:00:00Z
constexpr Instant summer{1721044800}; // 2024-07-15T12:00:00Z

const ShortZoneNames& namesIn(const QString& locale) {
    static const ShortZoneNames american(UserLocale::named(u"en_US"_s));
    static const ShortZoneNames british(UserLocale::named(u"en_GB"_s));
    return locale == u"en_GB"_s ? british : american;
}

FavoriteTZRow row(const QString& identifier, Instant now, const QString& locale = u"en_US"_s) {
    static const ZoneDatabase zones;
    return FavoriteTZRow(TimeZoneRow(*zones.zone(identifier), now, namesIn(locale)));
}

TEST(FavoriteTZRow, IsCalledByItsCity) {
    EXPECT_EQ(row(u"America/New_York"_s, winter).label(), u"New York"_s);
    EXPECT_EQ(row(u"America/Argentina/Buenos_Aires"_s, winter).label(), u"Buenos Aires"_s);
}

TEST(FavoriteTZRow, ShowsTheOffsetOfTheMoment) {
    EXPECT_EQ(row(u"America/New_York"_s, winter).offsetString(), u"UTC-5"_s);
    EXPECT_EQ(row(u"America/New_York"_s, summer).offsetString(), u"UTC-4"_s);
    EXPECT_EQ(row(u"Asia/Kathmandu"_s, winter).offsetString(), u"UTC+5:45"_s);
}

TEST(FavoriteTZRow, ShowsTheAbbreviationOfTheMoment) {
    EXPECT_EQ(row(u"America/New_York"_s, winter).abbreviation(), u"EST"_s);
    EXPECT_EQ(row(u"America/New_York"_s, summer).abbreviation(), u"EDT"_s);
    EXPECT_EQ(row(u"UTC"_s, winter).abbreviation(), u"UTC"_s);
}

TEST(FavoriteTZRow, ShowsNoAbbreviationThatBeginsWithGmtWithOrWithoutASign) {
    EXPECT_EQ(row(u"Asia/Tokyo"_s, winter).abbreviation(), std::nullopt);
    EXPECT_EQ(row(u"Europe/London"_s, winter).abbreviation(), std::nullopt);
    EXPECT_EQ(row(u"Europe/London"_s, summer).abbreviation(), std::nullopt);
    EXPECT_EQ(row(u"Europe/London"_s, summer, u"en_GB"_s).abbreviation(), u"BST"_s);
}

TEST(FavoriteTZRow, IsReadOutWithWhatItShows) {
    EXPECT_EQ(row(u"America/New_York"_s, winter).description(), u"UTC-5, EST"_s);
    EXPECT_EQ(row(u"Asia/Tokyo"_s, winter).description(), u"UTC+9"_s);
}

} // namespace
} // namespace quorvane
