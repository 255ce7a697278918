// SPDX-License-Identifier: MIT
#include "Zones.h"

#include <timezones/ZoneSelection.h>

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using testing::ElementsAre;

TEST(ZoneSelection, TheOnlySelectedZoneStays) {
    const auto selection = toggledSelection(zoneList({"Europe/Paris"}), zone("Europe/Paris"));
    EXPECT_THAT(identifiersOf(selection), ElementsAre("Europe/Paris"));
}

TEST(ZoneSelection, ASecondZoneComesAfterTheFirst) {
    const auto selection = toggledSelection(zoneList({"Europe/Paris"}), zone("America/New_York"));
    EXPECT_THAT(identifiersOf(selection), ElementsAre("Europe/Paris", "America/New_York"));
}

TEST(ZoneSelection, ASelectedZoneIsRemovedFromItsPlace) {
    const auto selection =
        toggledSelection(zoneList({"UTC", "Europe/Paris", "Asia/Tokyo"}), zone("Europe/Paris"));
    EXPECT_THAT(identifiersOf(selection), ElementsAre("UTC", "Asia/Tokyo"));
}

TEST(ZoneSelection, TheFirstOfTwoEqualZonesGoes) {
    const auto selection =
        toggledSelection(zoneList({"Asia/Tokyo", "UTC", "Asia/Tokyo"}), zone("Asia/Tokyo"));
    EXPECT_THAT(identifiersOf(selection), ElementsAre("UTC", "Asia/Tokyo"));
}

TEST(ZoneSelection, ALinkIsAnotherZoneThanItsTarget) {
    const auto selection = toggledSelection(zoneList({"Asia/Kolkata"}), zone("Asia/Calcutta"));
    EXPECT_THAT(identifiersOf(selection), ElementsAre("Asia/Kolkata", "Asia/Calcutta"));
}

} // namespace
} // namespace quorvane
