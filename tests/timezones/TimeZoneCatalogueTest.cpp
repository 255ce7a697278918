// SPDX-License-Identifier: MIT
#include "Zones.h"

#include <timezones/TimeZoneCatalogue.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <set>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

std::vector<TimeZone> zonesOf(const TimeZoneCatalogue& catalogue) {
    std::vector<TimeZone> zones;
    for (const auto& entry : catalogue.entries())
        zones.push_back(entry.zone);
    return zones;
}

TEST(TimeZoneCatalogue, RunsFromTwelveHoursWestToFourteenEast) {
    for (const auto instant : {winter, summer}) {
        const auto zones = zonesOf({ZoneDatabase(), instant});
        ASSERT_GT(zones.size(), 400U);
        EXPECT_EQ(zones.front(), zone("Etc/GMT+12"));
        EXPECT_EQ(zones.back(), zone("Pacific/Kiritimati"));
        for (std::size_t i = 1; i < zones.size(); ++i) {
            const int before = zones[i - 1].secondsFromGMT(instant);
            const int after = zones[i].secondsFromGMT(instant);
            EXPECT_LE(before, after) << zones[i].identifier().toStdString();
            if (before == after) {
                EXPECT_LT(identifiersOf(zones)[i - 1], identifiersOf(zones)[i]);
            }
        }
    }
}

TEST(TimeZoneCatalogue, HasUtcAndEveryZoneByItsPresentNameOnce) {
    const auto identifiers = identifiersOf(zonesOf({ZoneDatabase(), winter}));
    const std::set<std::string> unique(identifiers.begin(), identifiers.end());
    EXPECT_EQ(unique.size(), identifiers.size());
    EXPECT_TRUE(unique.contains("UTC"));
    EXPECT_TRUE(unique.contains("Asia/Kolkata"));
    EXPECT_FALSE(unique.contains("Asia/Calcutta"));
}

TEST(TimeZoneCatalogue, SearchTextIsLowerCaseWithSpaces) {
    const TimeZoneCatalogue catalogue(ZoneDatabase(), winter);
    for (const auto& entry : catalogue.entries()) {
        if (entry.zone.identifier() == u"America/Port_of_Spain"_s) {
            EXPECT_EQ(entry.searchText, u"america/port of spain"_s);
            return;
        }
    }
    FAIL() << "no Port of Spain";
}

TEST(TimeZoneCatalogue, TableRowsThatNameNoZoneOrOneTwiceAreDropped) {
    const QTemporaryDir folder;
    const auto write = [&folder](const QString& name, const QByteArray& text) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    };
    ASSERT_TRUE(
        write(u"tzdata.zi"_s, "Z Europe/Paris 1 - CET\nZ Moon/Tycho 1 - MT\nZ UTC 0 - UTC\n"));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"Europe"_s));
    ASSERT_TRUE(
        QFile::copy(u"/usr/share/zoneinfo/Europe/Paris"_s, folder.filePath(u"Europe/Paris"_s)));
    ASSERT_TRUE(write(
        u"zone.tab"_s,
        "FR\t+4852+00220\tEurope/Paris\nXX\t+0\tMoon/Tycho\nXX\t+0\tMoon/Copernicus\n"
        "MC\t+4342+00723\tEurope/Paris\nXX\t+0\tUTC\n"));
    EXPECT_THAT(
        identifiersOf(zonesOf({ZoneDatabase(folder.path()), winter})),
        ElementsAre("UTC", "Europe/Paris"));
}

TEST(TimeZoneCatalogue, OrderFollowsTheOffsetAtTheInstant) {
    const auto zones = zoneList({"Europe/London", "Atlantic/Reykjavik", "Africa/Lagos"});
    EXPECT_THAT(
        identifiersOf(sortedByOffset(zones, winter)),
        ElementsAre("Atlantic/Reykjavik", "Europe/London", "Africa/Lagos"));
    EXPECT_THAT(
        identifiersOf(sortedByOffset(zones, summer)),
        ElementsAre("Atlantic/Reykjavik", "Africa/Lagos", "Europe/London"));
}

TEST(TimeZoneCatalogue, UpperCaseComesBeforeLowerCase) {
    EXPECT_THAT(
        identifiersOf(
            sortedByOffset(zoneList({"Asia/Ust-Nera", "Etc/GMT-10", "EST", "Etc/GMT+5"}), winter)),
        ElementsAre("EST", "Etc/GMT+5", "Asia/Ust-Nera", "Etc/GMT-10"));
}

} // namespace
} // namespace quorvane
