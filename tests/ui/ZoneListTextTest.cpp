// SPDX-License-Identifier: MIT
#include <ui/ZoneListText.h>

#include <QStringList>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

QStringList identifiers(const QString& text) {
    QStringList list;
    for (const auto& zone : zonesFromText(text, ZoneDatabase()))
        list.append(zone.identifier());
    return list;
}

TEST(ZoneListText, ReadsIdentifiersBetweenCommas) {
    EXPECT_EQ(
        identifiers(u" Europe/Paris,Asia/Tokyo , UTC"_s),
        (QStringList{u"Europe/Paris"_s, u"Asia/Tokyo"_s, u"UTC"_s}));
}

TEST(ZoneListText, LeavesOutWhatNamesNoZoneAndWhatIsNamedTwice) {
    EXPECT_EQ(identifiers(u",,"_s), QStringList());
    EXPECT_EQ(identifiers(u"europe/paris, PST, GMT+3"_s), QStringList());
    EXPECT_EQ(identifiers(u"UTC, UTC"_s), QStringList{u"UTC"_s});
}

TEST(ZoneListText, WritesWhatItReads) {
    const auto text = u"Europe/Paris, Asia/Tokyo"_s;
    EXPECT_EQ(zoneListText(zonesFromText(text, ZoneDatabase())), text);
    EXPECT_EQ(zoneListText({}), QString());
}

} // namespace
} // namespace quorvane
