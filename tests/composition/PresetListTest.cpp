// SPDX-License-Identifier: MIT
#include "Samples.h"

#include <composition/PresetList.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace samples;
using testing::ElementsAre;
using enum DateFormatPreset;

std::vector<DateFormatPreset> available(bool date, bool time, const char* localeName = "en_US") {
    return availableFormatPresets(
        march9, zone("America/Los_Angeles"), settings(date, time, localeName));
}

TEST(PresetList, WithDateAndTimeAllButTheSingleOnesAreOffered) {
    EXPECT_THAT(
        available(with, with),
        ElementsAre(
            LongForm,
            MediumForm,
            ShortForm,
            Iso8601,
            Rfc2822,
            WithDayOfWeek,
            UnixTimestamp,
            Custom));
}

TEST(PresetList, PresetWithTheTextOfAnEarlierOneIsDropped) {
    // Date Only always says what Long says of a date, Time Only what it says of a time; in American
    // English, so do Medium and Short of a time.
    EXPECT_THAT(
        available(with, without),
        ElementsAre(
            LongForm,
            MediumForm,
            ShortForm,
            Iso8601,
            Rfc2822,
            WithDayOfWeek,
            UnixTimestamp,
            Custom));
    EXPECT_THAT(
        available(without, with),
        ElementsAre(LongForm, Iso8601, Rfc2822, WithDayOfWeek, UnixTimestamp, Custom));
    EXPECT_THAT(
        available(without, without),
        ElementsAre(LongForm, MediumForm, Iso8601, Rfc2822, WithDayOfWeek, UnixTimestamp, Custom));
}

TEST(PresetList, MediumIsOfferedWhereTheLocalesTimeDiffersFromLong) {
    // Long has the clock of 12 hours everywhere.
    EXPECT_THAT(
        available(without, with, "de_DE"),
        ElementsAre(LongForm, MediumForm, Iso8601, Rfc2822, WithDayOfWeek, UnixTimestamp, Custom));
}

TEST(PresetList, CustomIsOfferedThoughItSaysTheSame) {
    auto sameAsIso = settings(with, without);
    sameAsIso.customPattern = QStringLiteral("yyyy-MM-dd");
    const auto presets = availableFormatPresets(march9, zone("UTC"), sameAsIso);
    EXPECT_EQ(presets.back(), Custom);
    EXPECT_THAT(presets, testing::Contains(Iso8601));
}

// In May the name of the month is its own abbreviation.
TEST(PresetList, PresetThatIsLeftOutHasTheOneOfTheSameTextInItsPlace) {
    constexpr Instant may9{1715292000}; // 2024-05-09T22:00:00Z
    const auto inMay = settings(with, without);
    const auto losAngeles = zone("America/Los_Angeles");
    const auto offered = availableFormatPresets(may9, losAngeles, inMay);
    ASSERT_THAT(offered, testing::Not(testing::Contains(MediumForm)));
    const auto equivalent = [&](DateFormatPreset preset) {
        return equivalentFormatPreset(preset, offered, may9, losAngeles, inMay);
    };
    EXPECT_EQ(equivalent(MediumForm), LongForm);
    EXPECT_EQ(equivalent(ShortForm), ShortForm);
    EXPECT_EQ(
        equivalentFormatPreset(MediumForm, {ShortForm, LongForm}, may9, losAngeles, inMay),
        LongForm);
    EXPECT_EQ(
        equivalentFormatPreset(MediumForm, {ShortForm, Custom}, may9, losAngeles, inMay),
        std::nullopt);
}

TEST(PresetList, PresetThatIsNoLongerOfferedGivesWayToTheFirst) {
    EXPECT_EQ(reconciledFormatPreset(TimeOnly, {MediumForm, Custom}), MediumForm);
    EXPECT_EQ(reconciledFormatPreset(Custom, {MediumForm, Custom}), Custom);
}

} // namespace
} // namespace quorvane
