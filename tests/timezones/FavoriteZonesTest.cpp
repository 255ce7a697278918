// SPDX-License-Identifier: MIT
#include "Zones.h"

#include <timezones/FavoriteZones.h>

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(FavoriteZones, KeepTheirOrderAndDropWhatNamesNoZone) {
    const QStringList identifiers{
        u"Europe/Paris"_s,
        u"Foo/Bar"_s,
        u"Asia/Calcutta"_s,
        QString(),
        u"america/new_york"_s,
        u"America/New_York"_s};
    EXPECT_THAT(
        identifiersOf(favoriteZones(identifiers, ZoneDatabase())),
        ElementsAre("Europe/Paris", "Asia/Calcutta", "America/New_York"));
    EXPECT_THAT(favoriteZones({}, ZoneDatabase()), IsEmpty());
}

} // namespace
} // namespace quorvane
