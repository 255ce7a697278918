// SPDX-License-Identifier: MIT
#include "TimeZoneAliases.h"

#include <time/ZoneDatabase.h>

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

TEST(TimeZoneAliases, WashingtonIsNewYorkAlone) {
    EXPECT_THAT(
        TimeZoneAliases::identifiersMatching(u"washington"_s),
        UnorderedElementsAre(u"America/New_York"_s));
}

TEST(TimeZoneAliases, AnyPartOfAnAliasMatches) {
    EXPECT_THAT(
        TimeZoneAliases::identifiersMatching(u"la"_s),
        UnorderedElementsAre(
            u"America/New_York"_s,
            u"America/Los_Angeles"_s,
            u"America/Chicago"_s,
            u"Europe/Rome"_s));
    EXPECT_THAT(TimeZoneAliases::identifiersMatching(u"o, f"_s), IsEmpty());
    EXPECT_THAT(TimeZoneAliases::identifiersMatching(u"münchen"_s), IsEmpty());
}

TEST(TimeZoneAliases, TextsAreTakenAsTheyAre) {
    EXPECT_THAT(TimeZoneAliases::identifiersMatching(u"NYC"_s), IsEmpty());
    EXPECT_THAT(TimeZoneAliases::identifiersMatching(u" nyc"_s), IsEmpty());
}

const std::vector<std::pair<std::string, std::string>> aliases{
    {"washington", "America/New_York"},   {"washington dc", "America/New_York"},
    {"dc", "America/New_York"},           {"boston", "America/New_York"},
    {"philadelphia", "America/New_York"}, {"miami", "America/New_York"},
    {"atlanta", "America/New_York"},      {"nyc", "America/New_York"},
    {"seattle", "America/Los_Angeles"},   {"san francisco", "America/Los_Angeles"},
    {"sf", "America/Los_Angeles"},        {"san diego", "America/Los_Angeles"},
    {"portland", "America/Los_Angeles"},  {"las vegas", "America/Los_Angeles"},
    {"vegas", "America/Los_Angeles"},     {"la", "America/Los_Angeles"},
    {"dallas", "America/Chicago"},        {"houston", "America/Chicago"},
    {"austin", "America/Chicago"},        {"london uk", "Europe/London"},
    {"paris france", "Europe/Paris"},     {"frankfurt", "Europe/Berlin"},
    {"munich", "Europe/Berlin"},          {"milan", "Europe/Rome"},
    {"beijing", "Asia/Shanghai"},         {"shenzhen", "Asia/Shanghai"},
    {"mumbai", "Asia/Kolkata"},           {"delhi", "Asia/Kolkata"},
    {"bangalore", "Asia/Kolkata"},        {"bengaluru", "Asia/Kolkata"},
};

TEST(TimeZoneAliases, AreTheseAndNoOthers) {
    std::vector<std::pair<std::string, std::string>> rows;
    for (const auto& alias : TimeZoneAliases::map)
        rows.emplace_back(alias.name.data(), alias.identifier.data());
    EXPECT_EQ(rows, aliases);
}

TEST(TimeZoneAliases, EveryAliasNamesAKnownZoneInLowerCase) {
    EXPECT_THAT(TimeZoneAliases::map, SizeIs(30));
    const ZoneDatabase zones;
    for (const auto& alias : TimeZoneAliases::map) {
        EXPECT_TRUE(zones.isKnown(alias.identifier)) << alias.name.data();
        EXPECT_EQ(QString(alias.name), QString(alias.name).toLower());
        EXPECT_TRUE(TimeZoneAliases::identifiersMatching(alias.name).contains(alias.identifier))
            << alias.name.data();
    }
}

} // namespace
} // namespace quorvane
