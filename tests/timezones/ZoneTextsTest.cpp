// SPDX-License-Identifier: MIT
#include "Zones.h"

#include <time/ZoneNames.h>
#include <timezones/ZoneTexts.h>

#include <gtest/gtest.h>

#include <algorithm>

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

// CLDR writes offsets as "UTC+9" (fr, fi), "GMT−5" with U+2212 (sv, lt), "GMT -5" (hr), with a word
// and digits of its own (bg, ar), and with marks of direction (he, fa).
TEST(ZoneLabel, OffsetInAnyLanguageIsNoName) {
    const ZoneDatabase database;
    for (const char* language :
         {"fr_FR",
          "fi_FI",
          "sv_SE",
          "lt_LT",
          "hr_HR",
          "bg_BG",
          "ar_EG",
          "he_IL",
          "fa_IR",
          "de_DE"}) {
        for (const auto instant : {winter, summer}) {
            for (const auto& each : database.zones(database.zonesByCountry())) {
                const auto label = zoneLabel(each, instant, locale(language));
                EXPECT_TRUE(std::ranges::none_of(label, [](QChar c) { return c.isDigit(); }))
                    << language << ' ' << each.identifier().toStdString() << ' '
                    << label.toStdString();
            }
        }
    }
    EXPECT_EQ(zoneLabel(zone("America/New_York"), winter, locale("fr_FR")), u"New York"_s);
    EXPECT_EQ(zoneLabel(zone("Europe/Paris"), winter, locale("fr_FR")), u"Paris"_s);
    EXPECT_EQ(zoneLabel(zone("America/New_York"), winter, locale("fr_CA")), u"HNE"_s);
    EXPECT_EQ(zoneLabel(zone("Europe/Berlin"), winter, locale("de_DE")), u"MEZ"_s);
    EXPECT_EQ(zoneLabel(ZoneDatabase::utc(), winter, locale("fr_FR")), u"UTC"_s);
}

TEST(ZoneLabel, EnglishLabelsAreThoseOfTheAbbreviation) {
    const ZoneDatabase database;
    const auto english = locale("en_US");
    for (const auto& each : database.zones(database.zonesByCountry()))
        EXPECT_EQ(
            zoneLabel(each, winter, english),
            zoneLabel(each.identifier(), zoneAbbreviation(each, winter, english)));
}

TEST(ZoneLabels, EqualOnesAddTheirCities) {
    const auto labels = [](const QStringList& identifiers, const char* language) {
        return zoneLabels(ZoneDatabase().zones(identifiers), winter, locale(language));
    };
    EXPECT_EQ(
        labels({u"Europe/Paris"_s, u"Europe/London"_s, u"Europe/Berlin"_s}, "en_GB"),
        (QStringList{u"CET Paris"_s, u"GMT"_s, u"CET Berlin"_s}));
    EXPECT_EQ(
        labels({u"UTC"_s, u"Etc/UTC"_s, u"Asia/Tokyo"_s}, "en_US"),
        (QStringList{u"UTC"_s, u"UTC"_s, u"Tokyo"_s}));
    EXPECT_EQ(labels({}, "en_US"), QStringList());
}

TEST(PlaceName, ZoneWhoseNameHasTheOppositeSignIsItsOffset) {
    EXPECT_EQ(placeName(u"Etc/GMT+12"_s), u"UTC−12"_s);
    EXPECT_EQ(placeName(u"Etc/GMT-14"_s), u"UTC+14"_s);
    EXPECT_EQ(placeName(u"Etc/GMT+0"_s), u"GMT+0"_s);
    EXPECT_EQ(placeName(u"America/Sao_Paulo"_s), u"Sao Paulo"_s);
    for (const char* language : {"en_US", "fr_FR", "he_IL"})
        EXPECT_EQ(zoneLabel(zone("Etc/GMT+12"), winter, locale(language)), u"UTC−12"_s);
    EXPECT_EQ(zoneLabel(u"Etc/GMT+12"_s, std::nullopt), u"GMT+12"_s) << "the rule by itself";
}

TEST(PlaceAndOffset, AreBothSaidUnlessOneSaysTheOther) {
    EXPECT_EQ(placeAndOffset(zone("America/Toronto"), winter), u"Toronto, UTC−5"_s);
    EXPECT_EQ(placeAndOffset(zone("America/Toronto"), summer), u"Toronto, UTC−4"_s);
    EXPECT_EQ(placeAndOffset(zone("Asia/Kathmandu"), winter), u"Kathmandu, UTC+5:45"_s);
    EXPECT_EQ(placeAndOffset(zone("Etc/GMT+12"), winter), u"UTC−12"_s);
    EXPECT_EQ(placeAndOffset(ZoneDatabase::utc(), winter), u"UTC"_s);
}

} // namespace
} // namespace quorvane
