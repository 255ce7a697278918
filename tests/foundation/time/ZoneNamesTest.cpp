// SPDX-License-Identifier: MIT
#include "IcuRelease.h"

#include <time/DateText.h>
#include <time/IcuTimeZone.h>
#include <time/ZoneDatabase.h>
#include <time/ZoneNames.h>

#include <gtest/gtest.h>

#include <limits>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr Instant winter{1705320000}; // 2024-01-15T12:00:00Z
constexpr Instant summer{1721044800}; // 2024-07-15T12:00:00Z

TimeZone zone(const QString& identifier) {
    return ZoneDatabase().zone(identifier).value();
}

class ZoneNamesTest : public testing::TestWithParam<const char*> {
protected:
    const UserLocale m_locale = UserLocale::named(QString::fromUtf8(GetParam()));
};

TEST_P(ZoneNamesTest, AbbreviationIsThePatternsTextForEveryZone) {
    const ZoneDatabase database;
    for (const auto instant : {winter, summer}) {
        const ZoneNames names(instant, m_locale);
        for (const auto& identifier : database.zonesByCountry()) {
            const auto each = database.zone(identifier).value();
            const auto expected = patternText(instant, each, u"zzz"_s, m_locale);
            EXPECT_EQ(names.abbreviation(each), expected) << identifier.toStdString();
            EXPECT_EQ(names.abbreviation(*icuTimeZone(each)), expected) << identifier.toStdString();
        }
    }
}

TEST_P(ZoneNamesTest, AbbreviationIsThePatternsTextAtAnyInstant) {
    using Limits = std::numeric_limits<double>;
    for (const double seconds :
         {-1e300, -1e15, -3e9, 0.0, 4e9, 1e15, 1e300, Limits::infinity(), -Limits::infinity()}) {
        for (const auto& identifier : {u"Europe/Paris"_s, u"America/Ciudad_Juarez"_s}) {
            const auto each = zone(identifier);
            EXPECT_EQ(
                zoneAbbreviation(each, {seconds}, m_locale),
                patternText({seconds}, each, u"zzz"_s, m_locale))
                << seconds << ' ' << identifier.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Locales, ZoneNamesTest, testing::Values("en_US", "en_GB", "de_DE", "th_TH", "fr_FR", "fa_IR"));

TEST(ZoneNames, GenericNameIsTheSameAllYear) {
    const auto english = UserLocale::named(u"en_US"_s);
    const auto german = UserLocale::named(u"de_DE"_s);
    for (const auto instant : {winter, summer}) {
        const auto losAngeles = zone(u"America/Los_Angeles"_s);
        EXPECT_EQ(ZoneNames(instant, english).genericName(losAngeles), u"Pacific Time"_s);
        EXPECT_EQ(
            ZoneNames(instant, german).genericName(zone(u"Europe/Berlin"_s)),
            u"Mitteleuropäische Zeit"_s);
    }
}

TEST(ZoneNames, ZoneWithLawNewerThanIcusDataStillHasItsGenericName) {
    const auto english = UserLocale::named(u"en_US"_s);
    EXPECT_EQ(
        ZoneNames(summer, english).genericName(zone(u"Asia/Almaty"_s)),
        byIcuRelease<QString>({{72, u"East Kazakhstan Time"_s}, {76, u"Kazakhstan Time"_s}}));
}

TEST(ZoneNames, ZoneThatIcuDoesNotKnowHasAnAbbreviationButNoGenericName) {
    const auto english = UserLocale::named(u"en_US"_s);
    const auto coyhaique = zone(u"America/Coyhaique"_s);
    EXPECT_EQ(zoneAbbreviation(coyhaique, summer, english), u"GMT-4"_s);
    EXPECT_EQ(ZoneNames(summer, english).genericName(coyhaique), std::nullopt);
}

TEST(ZoneNames, ZoneThatIcuHasLearntHasTheNamesOfItsRelease) {
    const auto english = UserLocale::named(u"en_US"_s);
    const auto juarez = zone(u"America/Ciudad_Juarez"_s);
    EXPECT_EQ(
        zoneAbbreviation(juarez, summer, english),
        byIcuRelease<QString>({{72, u"GMT-6"_s}, {76, u"MDT"_s}}));
    EXPECT_EQ(
        ZoneNames(summer, english).genericName(juarez),
        byIcuRelease<std::optional<QString>>({{72, std::nullopt}, {76, u"Mountain Time"_s}}));
}

} // namespace
} // namespace quorvane
