// SPDX-License-Identifier: MIT
#include "TimeZoneAliases.h"

#include <gmock/gmock.h>

#include <time/ZoneDatabase.h>

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
