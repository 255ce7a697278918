// SPDX-License-Identifier: MIT
#include "Zones.h"

#include <timezones/ZoneSearch.h>

#include <gmock/gmock.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

class ZoneSearchTest : public testing::Test {
protected:
    using Identifiers = std::vector<std::string>;

    [[nodiscard]] Identifiers found(const QString& query, Instant now = winter) const {
        return identifiersOf(m_search.filtered(query, now));
    }

    [[nodiscard]] Identifiers starred(const QString& query, const QStringList& favorites) const {
        return identifiersOf(m_search.filteredStarred(query, winter, favorites));
    }

    [[nodiscard]] Identifiers all() const {
        Identifiers identifiers;
        for (const auto& entry : m_search.catalogue().entries())
            identifiers.push_back(entry.zone.identifier().toStdString());
        return identifiers;
    }

    ZoneSearch m_search{{ZoneDatabase(), winter}, locale("en_US")};
};

TEST_F(ZoneSearchTest, EmptyQueryFindsEveryZoneInItsOrder) {
    EXPECT_EQ(found({}), all());
    EXPECT_EQ(found(u" \t "_s), all());
}

TEST_F(ZoneSearchTest, LaWithSpacesInUpperCaseFindsAliasesAndIdentifiers) {
    const auto zones = found(u"  LA\t"_s);
    EXPECT_EQ(zones, found(u"la"_s));
    EXPECT_THAT(
        zones,
        IsSupersetOf(
            {"America/New_York",
             "America/Los_Angeles",
             "America/Chicago",
             "Europe/Rome",
             "Africa/Blantyre",
             "America/Guatemala"}));
    EXPECT_THAT(zones, Not(Contains("Europe/Paris")));
}

TEST_F(ZoneSearchTest, WashingtonFindsNewYorkAlone) {
    EXPECT_THAT(found(u"washington"_s), ElementsAre("America/New_York"));
}

TEST_F(ZoneSearchTest, YorkFindsNewYorkByIdentifier) {
    EXPECT_THAT(found(u"york"_s), ElementsAre("America/New_York"));
    EXPECT_THAT(found(u"New York"_s), ElementsAre("America/New_York"));
}

TEST_F(ZoneSearchTest, QueryWithAnUnderscoreFindsNothing) {
    EXPECT_THAT(found(u"new_york"_s), IsEmpty());
}

TEST_F(ZoneSearchTest, LineFeedsBelongToTheQuery) {
    EXPECT_THAT(found(u"york\n"_s), IsEmpty());
}

TEST_F(ZoneSearchTest, AbbreviationsAreThoseOfTheMoment) {
    EXPECT_THAT(found(u"pst"_s, winter), Contains("America/Los_Angeles"));
    EXPECT_THAT(found(u"pst"_s, summer), Not(Contains("America/Los_Angeles")));
    EXPECT_THAT(found(u"PDT"_s, summer), Contains("America/Los_Angeles"));
    EXPECT_THAT(found(u"gmt+9"_s), IsSupersetOf({"Asia/Tokyo", "Asia/Seoul"}));
}

TEST_F(ZoneSearchTest, AbbreviationsChangeAtTheTransitionItself) {
    constexpr double transition = 1710064800; // 2024-03-10T10:00:00Z
    for (const double before : {0.001, 0.5, 59.0, 61.0}) {
        EXPECT_THAT(found(u"pst"_s, {transition - before}), Contains("America/Los_Angeles"));
        EXPECT_THAT(found(u"pdt"_s, {transition - before}), Not(Contains("America/Los_Angeles")));
    }
    for (const double after : {0.0, 0.001, 59.0, 61.0}) {
        EXPECT_THAT(found(u"pdt"_s, {transition + after}), Contains("America/Los_Angeles"));
        EXPECT_THAT(found(u"pst"_s, {transition + after}), Not(Contains("America/Los_Angeles")));
    }
}

TEST_F(ZoneSearchTest, GenericNamesAreTheLocales) {
    EXPECT_THAT(found(u"pacific time"_s), IsSupersetOf({"America/Los_Angeles", "America/Tijuana"}));
    const ZoneSearch german({ZoneDatabase(), winter}, locale("de_DE"));
    EXPECT_THAT(
        identifiersOf(german.filtered(u"MITTELEUROPÄISCHE"_s, winter)), Contains("Europe/Berlin"));
    EXPECT_THAT(german.filtered(u"pacific time"_s, winter), IsEmpty());
}

TEST_F(ZoneSearchTest, WhatIsFoundKeepsTheCataloguesOrder) {
    for (const auto& query : {u"a"_s, u"la"_s, u"time"_s, u"gmt"_s}) {
        const auto zones = found(query);
        ASSERT_GT(zones.size(), 10U);
        auto every = all();
        std::erase_if(every, [&zones](const std::string& identifier) {
            return std::ranges::find(zones, identifier) == zones.end();
        });
        EXPECT_EQ(zones, every) << query.toStdString();
    }
}

TEST_F(ZoneSearchTest, StarredOnlyShowsTheFavoritesThatNameKnownZonesInOrder) {
    const QStringList favorites{
        u"Asia/Tokyo"_s, u"Foo/Bar"_s, u"America/Los_Angeles"_s, u"america/new_york"_s, u"UTC"_s};
    EXPECT_THAT(starred({}, favorites), ElementsAre("America/Los_Angeles", "UTC", "Asia/Tokyo"));
    EXPECT_THAT(starred({}, {}), IsEmpty());
}

TEST_F(ZoneSearchTest, StarredOnlySearchesAmongTheFavorites) {
    const QStringList favorites{u"Asia/Tokyo"_s, u"America/Los_Angeles"_s};
    EXPECT_THAT(starred(u"america/"_s, favorites), ElementsAre("America/Los_Angeles"));
    EXPECT_THAT(starred(u"york"_s, favorites), IsEmpty());
}

} // namespace
} // namespace quorvane
