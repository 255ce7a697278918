// SPDX-License-Identifier: MIT
#include "Samples.h"

#include <composition/ZoneSlots.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using samples::zones;

QStringList slotIdentifiers(const QStringList& favorites, const std::vector<TimeZone>& selected) {
    QStringList identifiers;
    for (const auto& zone : timeZoneSlots(favorites, selected, ZoneDatabase()))
        identifiers.append(zone.identifier());
    return identifiers;
}

TEST(ZoneSlots, FavouritesKeepTheirPlaceWhetherSelectedOrNot) {
    const QStringList favorites{u"Asia/Tokyo"_s, u"Europe/Rome"_s};
    EXPECT_EQ(slotIdentifiers(favorites, {}), favorites);
    EXPECT_EQ(slotIdentifiers(favorites, zones({"Europe/Rome"})), favorites);
    EXPECT_EQ(
        slotIdentifiers(favorites, zones({"UTC", "Europe/Rome", "Asia/Seoul"})),
        favorites + QStringList({u"UTC"_s, u"Asia/Seoul"_s}));
}

TEST(ZoneSlots, UnknownFavouritesAreDropped) {
    EXPECT_EQ(
        slotIdentifiers({u"Foo/Bar"_s, u""_s, u"Asia/Tokyo"_s, u"asia/tokyo"_s}, {}),
        QStringList{u"Asia/Tokyo"_s});
}

TEST(ZoneSlots, RepeatedEntriesStayRepeated) {
    EXPECT_EQ(
        slotIdentifiers({u"UTC"_s, u"UTC"_s}, zones({"Asia/Seoul", "Asia/Seoul"})),
        QStringList({u"UTC"_s, u"UTC"_s, u"Asia/Seoul"_s, u"Asia/Seoul"_s}));
}

TEST(ZoneSlots, OldNameIsTheListedZoneAndIsNotDoubled) {
    EXPECT_EQ(
        slotIdentifiers({u"US/Eastern"_s, u"Asia/Tokyo"_s}, zones({"America/New_York"})),
        (QStringList{u"America/New_York"_s, u"Asia/Tokyo"_s}));
}

} // namespace
} // namespace quorvane
