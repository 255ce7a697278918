// SPDX-License-Identifier: MIT
#include "FoldedText.h"
#include "Zones.h"

#include <timezones/ZoneSearch.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class ZoneResultsTest : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::string> results(const QString& query) const {
        return identifiersOf(m_search.results(query, winter));
    }

    /// Those beyond the first results.
    [[nodiscard]] std::vector<std::string> further(const QString& query) const {
        auto all = results(query);
        const auto first = identifiersOf(m_search.filtered(query, winter));
        EXPECT_GE(all.size(), first.size());
        EXPECT_TRUE(std::equal(first.begin(), first.end(), all.begin())) << "first results first";
        all.erase(all.begin(), all.begin() + std::ssize(first));
        return all;
    }

    [[nodiscard]] std::string reason(const QString& query, const char* identifier) const {
        return m_search.reason(query, winter, zone(identifier)).toStdString();
    }

    void speak(const char* language) { m_search = search(language); }

    [[nodiscard]] static ZoneSearch search(const char* language) {
        return {{ZoneDatabase(), winter}, locale(language)};
    }

private:
    ZoneSearch m_search = search("en_US");
};

TEST_F(ZoneResultsTest, CountryFindsItsZonesAfterTheFirstResults) {
    EXPECT_THAT(further(u"kenya"_s), ElementsAre("Africa/Nairobi"));
    EXPECT_THAT(further(u"  Switzerland "_s), ElementsAre("Europe/Zurich"));
    EXPECT_THAT(further(u"argentina"_s), ElementsAre());
}

TEST_F(ZoneResultsTest, CountryIsFoundInTheUsersLanguageAndInEnglish) {
    speak("de_DE");
    EXPECT_THAT(further(u"deutschland"_s), ElementsAre("Europe/Berlin", "Europe/Busingen"));
    EXPECT_THAT(further(u"germany"_s), ElementsAre("Europe/Berlin", "Europe/Busingen"));
    EXPECT_EQ(reason(u"deutschl"_s, "Europe/Berlin"), "Deutschland");
    EXPECT_EQ(reason(u"germ"_s, "Europe/Berlin"), "Germany");
    speak("ja_JP");
    EXPECT_THAT(further(u"スイス"_s), ElementsAre("Europe/Zurich"));
}

TEST_F(ZoneResultsTest, ShownOffsetIsFound) {
    EXPECT_THAT(further(u"utc+5:45"_s), ElementsAre("Asia/Kathmandu"));
    EXPECT_THAT(further(u"UTC−9:30"_s), ElementsAre("Pacific/Marquesas"));
    EXPECT_EQ(reason(u"utc+5:45"_s, "Asia/Kathmandu"), "") << "the row shows it";
}

TEST_F(ZoneResultsTest, OldNameIsFound) {
    EXPECT_THAT(further(u"calcutta"_s), ElementsAre("Asia/Kolkata"));
    EXPECT_THAT(further(u"us/eastern"_s), ElementsAre("America/New_York"));
    EXPECT_THAT(further(u"saigon"_s), ElementsAre("Asia/Ho_Chi_Minh"));
    EXPECT_EQ(reason(u"calcu"_s, "Asia/Kolkata"), "Calcutta");
}

TEST_F(ZoneResultsTest, AccentsDoNotMatter) {
    EXPECT_THAT(further(u"são paulo"_s), ElementsAre("America/Sao_Paulo"));
    EXPECT_THAT(further(u"ZÜRICH"_s), ElementsAre("Europe/Zurich"));
    EXPECT_THAT(further(u"cote d'ivoire"_s), ElementsAre("Africa/Abidjan"));
    EXPECT_EQ(reason(u"são paulo"_s, "America/Sao_Paulo"), "");
    speak("de_DE");
    EXPECT_THAT(further(u"osterreich"_s), ElementsAre("Europe/Vienna"));
}

TEST_F(ZoneResultsTest, QueryWithAnUnderscoreHasNoFurtherResults) {
    EXPECT_THAT(results(u"new_york"_s), ElementsAre());
    EXPECT_THAT(results(u"sao_"_s), ElementsAre());
}

TEST_F(ZoneResultsTest, EmptyQueryFindsEveryZoneOnce) {
    EXPECT_THAT(further(u" "_s), ElementsAre());
    EXPECT_GE(results({}).size(), 420U);
}

TEST_F(ZoneResultsTest, SearchThatWasPreparedFindsTheSame) {
    auto prepared = search("en_US");
    std::size_t zones = 0;
    while (prepared.prepareNext())
        ++zones;
    EXPECT_EQ(zones, prepared.catalogue().entries().size());
    for (const auto& query : {u""_s, u"la"_s, u"est"_s, u"germ"_s, u"pacific"_s, u"+5:30"_s})
        EXPECT_EQ(identifiersOf(prepared.results(query, winter)), results(query))
            << query.toStdString();
}

TEST_F(ZoneResultsTest, SearchIsPreparedAsFarAsItHasCome) {
    auto begun = search("en_US");
    EXPECT_TRUE(begun.prepareNext());
    EXPECT_EQ(identifiersOf(begun.results(u"kenya"_s, winter)), results(u"kenya"_s));
    EXPECT_FALSE(begun.prepareNext());
}

TEST_F(ZoneResultsTest, ReasonIsWhatTheRowDoesNotShow) {
    EXPECT_EQ(reason(u"bost"_s, "America/New_York"), "Boston");
    EXPECT_EQ(reason(u"nyc"_s, "America/New_York"), "NYC");
    EXPECT_EQ(reason(u"washington"_s, "America/New_York"), "Washington");
    EXPECT_EQ(reason(u"washington d"_s, "America/New_York"), "Washington DC");
    EXPECT_EQ(reason(u"san f"_s, "America/Los_Angeles"), "San Francisco");
    EXPECT_EQ(reason(u"pacific ti"_s, "America/Los_Angeles"), "Pacific Time");
    EXPECT_EQ(reason(u"indiana"_s, "America/Indiana/Knox"), "Indiana");
    EXPECT_EQ(reason(u"keny"_s, "Africa/Nairobi"), "Kenya");
}

TEST_F(ZoneResultsTest, NoReasonIsGivenForWhatTheRowShows) {
    for (const auto& query :
         {u""_s, u"york"_s, u"amer"_s, u"est"_s, u"utc-5"_s, u"utc−5"_s, u"america/new"_s})
        EXPECT_EQ(reason(query, "America/New_York"), "") << query.toStdString();
}

TEST(FoldedText, HasNoCaseAndNoAccents) {
    EXPECT_EQ(foldedText(u"São Tomé"_s), u"sao tome"_s);
    EXPECT_EQ(foldedText(u"Ålesund, Łódź, Großenhain"_s), u"alesund, lodz, grossenhain"_s);
    EXPECT_EQ(foldedText(u"UTC−5"_s), u"utc-5"_s);
    EXPECT_EQ(foldedText(u"İzmir"_s), u"izmir"_s);
    EXPECT_EQ(foldedText(u"東京"_s), u"東京"_s);
}

} // namespace
} // namespace quorvane
