// SPDX-License-Identifier: MIT
#include "Zones.h"

#include <timezones/ZoneTexts.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

std::string offset(const char* identifier, Instant instant = winter) {
    return offsetString(zone(identifier), instant).toStdString();
}

TEST(OffsetText, IsThatOfKathmanduStJohnsAndUtc) {
    EXPECT_EQ(offset("Asia/Kathmandu"), "UTC+5:45");
    EXPECT_EQ(offset("America/St_Johns"), "UTC-3:30");
    EXPECT_EQ(offset("America/St_Johns", summer), "UTC-2:30");
    EXPECT_EQ(offset("UTC"), "UTC+0");
}

TEST(OffsetText, HasMinutesOnlyWhereThereAreSome) {
    EXPECT_EQ(offset("America/Los_Angeles"), "UTC-8");
    EXPECT_EQ(offset("America/Los_Angeles", summer), "UTC-7");
    EXPECT_EQ(offset("Asia/Kolkata"), "UTC+5:30");
    EXPECT_EQ(offset("Pacific/Kiritimati"), "UTC+14");
    EXPECT_EQ(offset("Etc/GMT+12"), "UTC-12");
    EXPECT_EQ(offsetText(3600 + 60), u"UTC+1:01"_s);
    EXPECT_EQ(offsetText(3600 + 59), u"UTC+1"_s);
    EXPECT_EQ(offsetText(-3600 - 119), u"UTC-1:01"_s);
}

TEST(OffsetText, LessThanAnHourWestReadsAsEast) {
    EXPECT_EQ(offsetText(-30 * 60), u"UTC+0:30"_s);
    EXPECT_EQ(offsetText(-59), u"UTC+0"_s);
}

TEST(RegionName, IsTheFirstPieceOfSeveral) {
    EXPECT_EQ(regionName(u"America/New_York"_s), u"America"_s);
    EXPECT_EQ(regionName(u"America/Argentina/Ushuaia"_s), u"America"_s);
    EXPECT_EQ(regionName(u"/A//B"_s), u"A"_s);
    for (const auto& undivided : {u"UTC"_s, u"UTC/"_s, u"//"_s, QString()})
        EXPECT_FALSE(regionName(undivided).has_value()) << undivided.toStdString();
}

TEST(CityName, IsTheLastPieceWithSpaces) {
    EXPECT_EQ(cityName(u"America/North_Dakota/New_Salem"_s), u"New Salem"_s);
    EXPECT_EQ(cityName(u"America/Port-au-Prince"_s), u"Port-au-Prince"_s);
    EXPECT_EQ(cityName(u"Asia/Tokyo/"_s), u"Tokyo"_s);
    EXPECT_EQ(cityName(u"UTC"_s), u"UTC"_s);
}

TEST(CityName, IdentifierWithoutPiecesNamesItself) {
    EXPECT_EQ(cityName(u"//"_s), u"//"_s);
    EXPECT_EQ(cityName({}), QString());
}

TEST(ZoneLabel, IsTheAbbreviationUnlessThatIsAnOffset) {
    const auto kolkata = u"Asia/Kolkata"_s;
    EXPECT_EQ(zoneLabel(kolkata, u"IST"_s), u"IST"_s);
    EXPECT_EQ(zoneLabel(kolkata, u"GMT"_s), u"GMT"_s);
    EXPECT_EQ(zoneLabel(kolkata, u"gmt+5"_s), u"gmt+5"_s);
    EXPECT_EQ(zoneLabel(kolkata, u"GMT+5:30"_s), u"Kolkata"_s);
    EXPECT_EQ(zoneLabel(kolkata, u"GMT-"_s), u"Kolkata"_s);
    EXPECT_EQ(zoneLabel(kolkata, std::nullopt), u"Kolkata"_s);
}

TEST(ZoneLabel, KolkataIsItsCityWhereItsAbbreviationIsAnOffset) {
    EXPECT_EQ(zoneLabel(zone("Asia/Kolkata"), winter, locale("en_US")), u"Kolkata"_s);
    EXPECT_EQ(zoneLabel(zone("Asia/Kolkata"), winter, locale("en_IN")), u"IST"_s);
}

TEST(ZoneLabel, FollowsTheSeason) {
    const auto losAngeles = zone("America/Los_Angeles");
    EXPECT_EQ(zoneLabel(losAngeles, winter, locale("en_US")), u"PST"_s);
    EXPECT_EQ(zoneLabel(losAngeles, summer, locale("en_US")), u"PDT"_s);
}

} // namespace
} // namespace quorvane
