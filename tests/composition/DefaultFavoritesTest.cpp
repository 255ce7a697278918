// SPDX-License-Identifier: MIT
#include "Samples.h"

#include <composition/DefaultFavorites.h>

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using samples::zone;

const QStringList others{
    u"America/Los_Angeles"_s,
    u"America/New_York"_s,
    u"Europe/London"_s,
    u"Europe/Berlin"_s,
    u"Asia/Tokyo"_s,
    u"Asia/Singapore"_s,
    u"Australia/Sydney"_s};

TEST(DefaultFavorites, CurrentZoneComesFirst) {
    EXPECT_EQ(
        defaultFavoriteIdentifiers(zone("Asia/Kolkata"), ZoneDatabase()),
        QStringList{u"Asia/Kolkata"_s} + others);
}

TEST(DefaultFavorites, CurrentZoneIsNotListedTwice) {
    auto expected = others;
    expected.move(2, 0);
    EXPECT_EQ(defaultFavoriteIdentifiers(zone("Europe/London"), ZoneDatabase()), expected);
    EXPECT_EQ(expected.size(), 7);
}

TEST(DefaultFavorites, UnknownCandidatesAreDropped) {
    const QTemporaryDir noZones;
    EXPECT_EQ(
        defaultFavoriteIdentifiers(ZoneDatabase::utc(), ZoneDatabase(noZones.path())),
        QStringList{u"UTC"_s});
}

} // namespace
} // namespace quorvane
