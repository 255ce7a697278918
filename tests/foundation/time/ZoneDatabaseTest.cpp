// SPDX-License-Identifier: MIT
#include "ZoneOracle.h"

#include <time/ZoneDatabase.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(ZoneDatabase, KnowsZonesAndLinksByTheirExactNames) {
    const ZoneDatabase zones;
    for (const auto& known :
         {u"UTC"_s,
          u"EST5EDT"_s,
          u"Etc/GMT+12"_s,
          u"Asia/Calcutta"_s,
          u"Asia/Kolkata"_s,
          u"America/Ciudad_Juarez"_s,
          u"GMT"_s,
          u"America/Argentina/ComodRivadavia"_s}) {
        EXPECT_TRUE(zones.isKnown(known)) << known.toStdString();
        ASSERT_TRUE(zones.zone(known).has_value()) << known.toStdString();
        EXPECT_EQ(zones.zone(known)->identifier(), known);
    }
    for (const auto& unknown :
         {QString(),
          u"GMT+3"_s,
          u"UTC+3"_s,
          u"UTC+03:00"_s,
          u"america/new_york"_s,
          u"PST"_s,
          u"../zoneinfo/UTC"_s,
          u"Europe/../UTC"_s,
          u"Europe"_s,
          u"zone.tab"_s,
          u"posix/UTC"_s,
          u"/usr/share/zoneinfo/UTC"_s,
          u"UTC "_s,
          u"Z"_s,
          u"Europe/Paris\n"_s,
          u"ÉUTC"_s}) {
        EXPECT_FALSE(zones.isKnown(unknown)) << unknown.toStdString();
        EXPECT_FALSE(zones.zone(unknown).has_value()) << unknown.toStdString();
    }
}

TEST(ZoneDatabase, NamedZonesKeepTheirOrderAndWhatNamesNoneIsDropped) {
    const ZoneDatabase zones;
    QStringList named;
    for (const auto& zone : zones.zones(
             {u"Europe/Paris"_s,
              u"Foo/Bar"_s,
              u"Asia/Calcutta"_s,
              QString(),
              u"america/new_york"_s,
              u"America/New_York"_s}))
        named.append(zone.identifier());
    EXPECT_EQ(named, (QStringList{u"Europe/Paris"_s, u"Asia/Calcutta"_s, u"America/New_York"_s}));
    EXPECT_TRUE(zones.zones({}).empty());
}

TEST(ZoneDatabase, WithoutAnIndexOnlyUtcIsKnown) {
    const QTemporaryDir empty;
    const ZoneDatabase zones(empty.path());
    EXPECT_TRUE(zones.isKnown(u"UTC"_s));
    EXPECT_TRUE(zones.zone(u"UTC"_s).has_value());
    EXPECT_FALSE(zones.isKnown(u"Europe/Paris"_s));
    EXPECT_TRUE(zones.zonesByCountry().isEmpty());
}

TEST(ZoneDatabase, IndexedZoneWithoutADataFileIsNone) {
    const QTemporaryDir folder;
    QFile index(folder.filePath(u"tzdata.zi"_s));
    ASSERT_TRUE(index.open(QIODevice::WriteOnly));
    index.write("# version test\nZ Moon/Tycho 1 - MT\nL Moon/Tycho Moon/Surveyor");
    index.close();
    const ZoneDatabase zones(folder.path());
    EXPECT_TRUE(zones.isKnown(u"Moon/Tycho"_s));
    EXPECT_TRUE(zones.isKnown(u"Moon/Surveyor"_s));
    EXPECT_FALSE(zones.zone(u"Moon/Tycho"_s).has_value());
}

TEST(ZoneDatabase, LinkWithoutADataFileHasTheDataOfItsTarget) {
    const QTemporaryDir folder;
    QFile index(folder.filePath(u"tzdata.zi"_s));
    ASSERT_TRUE(index.open(QIODevice::WriteOnly));
    index.write("Z Asia/Kolkata 5:30 - IST\nL Asia/Kolkata Moon/Tycho\nL Moon/Tycho Moon/Surveyor\n"
                "L Moon/Luna Moon/Selene\nL Moon/Selene Moon/Luna");
    index.close();
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"Asia"_s));
    ASSERT_TRUE(
        QFile::copy(u"/usr/share/zoneinfo/Asia/Kolkata"_s, folder.filePath(u"Asia/Kolkata"_s)));
    const ZoneDatabase zones(folder.path());
    for (const auto& link : {u"Moon/Tycho"_s, u"Moon/Surveyor"_s}) {
        const auto zone = zones.zone(link);
        ASSERT_TRUE(zone.has_value()) << link.toStdString();
        EXPECT_EQ(zone->identifier(), link);
        EXPECT_EQ(zone->secondsFromGMT({0}), 19800);
        EXPECT_EQ(zones.dataFileOf(link), u"Asia/Kolkata"_s);
    }
    EXPECT_FALSE(zones.zone(u"Moon/Luna"_s).has_value());
    EXPECT_EQ(zones.dataFileOf(u"Moon/Luna"_s), QString());
}

TEST(ZoneDatabase, TableByCountryHasModernNames) {
    const auto zones = ZoneDatabase().zonesByCountry();
    EXPECT_EQ(zones.front(), u"Europe/Andorra"_s);
    EXPECT_TRUE(zones.contains(u"Asia/Kolkata"_s));
    EXPECT_FALSE(zones.contains(u"Asia/Calcutta"_s));
    EXPECT_GE(zones.size(), 418);
}

TEST(ZoneDatabase, KnowsExactlyTheZonesOfTheOracle) {
    ASSERT_FALSE(oracleOffsets().empty()) << "no /usr/bin/python3 with zoneinfo";
    const ZoneDatabase zones;
    std::set<QString> identifiers;
    for (const auto& offset : oracleOffsets())
        identifiers.insert(offset.identifier);
    EXPECT_GT(identifiers.size(), 590U);
    for (const auto& identifier : identifiers)
        EXPECT_TRUE(zones.zone(identifier).has_value()) << identifier.toStdString();
}

TEST(TimeZone, OffsetsAreThoseOfTheOracleForEveryZone) {
    ASSERT_FALSE(oracleOffsets().empty()) << "no /usr/bin/python3 with zoneinfo";
    const ZoneDatabase zones;
    auto zone = ZoneDatabase::utc();
    for (const auto& offset : oracleOffsets()) {
        if (zone.identifier() != offset.identifier)
            zone = zones.zone(offset.identifier).value();
        ASSERT_EQ(zone.secondsFromGMT({offset.secondsSince1970}), offset.secondsFromGMT)
            << offset.identifier.toStdString() << " at " << qint64(offset.secondsSince1970);
    }
}

TEST(TimeZone, OffsetChangesAtTheTransitionItself) {
    const auto newYork = ZoneDatabase().zone(u"America/New_York"_s).value();
    constexpr double transition = 1710054000; // 2024-03-10T07:00:00Z
    EXPECT_EQ(newYork.secondsFromGMT({transition - 0.001}), -5 * 3600);
    EXPECT_EQ(newYork.secondsFromGMT({transition}), -4 * 3600);
    EXPECT_FALSE(newYork.isDaylightTime({transition - 0.001}));
    EXPECT_TRUE(newYork.isDaylightTime({transition}));
}

TEST(TimeZone, AnyInstantHasAnOffset) {
    const auto berlin = ZoneDatabase().zone(u"Europe/Berlin"_s).value();
    for (const double seconds :
         {std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN(),
          1e300,
          -1e300,
          9.3e15,
          -9.3e15}) {
        const int offset = berlin.secondsFromGMT({seconds});
        EXPECT_LE(std::abs(offset), 7200) << seconds;
    }
}

TEST(TimeZone, IsEqualByIdentifierAlone) {
    const ZoneDatabase zones;
    EXPECT_EQ(zones.zone(u"Asia/Kolkata"_s), zones.zone(u"Asia/Kolkata"_s));
    EXPECT_NE(zones.zone(u"Asia/Kolkata"_s), zones.zone(u"Asia/Calcutta"_s));
}

} // namespace
} // namespace quorvane
