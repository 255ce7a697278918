// SPDX-License-Identifier: MIT
#include "Samples.h"

#include <composition/FormatSingle.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace samples;

std::string formatted(DateFormatPreset preset, const FormatSettings& settings) {
    return formatSingle(march9, zone("America/Los_Angeles"), preset, settings).toStdString();
}

struct Row {
    DateFormatPreset preset;
    const char* both;
    const char* time;
    const char* date;
    const char* neither;
};

TEST(FormatSingle, EachPresetHasItsTextForEachCombinationOfFlags) {
    using enum DateFormatPreset;
    const Row table[] = {
        {LongForm, "March 9, 2024 at 2:05 PM PST", "2:05 PM PST", "March 9, 2024", "March 9, 2024"},
        {MediumForm, "Mar 9, 2024, 2:05 PM PST", "2:05 PM PST", "Mar 9, 2024", ""},
        {ShortForm, "3/9/24, 2:05 PM PST", "2:05 PM PST", "3/9/24", ""},
        {Iso8601, "2024-03-09T14:05:00-08:00", "14:05:00-0800", "2024-03-09", "2024-03-09"},
        {Rfc2822,
         "Sat, 09 Mar 2024 14:05:00 -0800",
         "14:05:00 -0800",
         "Sat, 09 Mar 2024",
         "Sat, 09 Mar 2024"},
        {DateOnly, "March 9, 2024", "March 9, 2024", "March 9, 2024", "March 9, 2024"},
        {TimeOnly, "2:05 PM PST", "2:05 PM PST", "2:05 PM PST", "2:05 PM PST"},
        {WithDayOfWeek,
         "Saturday, March 9, 2024 at 2:05 PM PST",
         "Saturday at 2:05 PM PST",
         "Saturday, March 9, 2024",
         "Saturday, March 9, 2024"},
        {UnixTimestamp, "1710021900", "1710021900", "1710021900", "1710021900"},
        {Custom,
         "2024-03-09 14:05 PST",
         "2024-03-09 14:05 PST",
         "2024-03-09 14:05 PST",
         "2024-03-09 14:05 PST"},
    };
    ASSERT_EQ(std::size(table), allDateFormatPresets.size());
    for (const auto& row : table) {
        const auto label = rawValue(row.preset).toStdString();
        EXPECT_EQ(formatted(row.preset, settings(with, with)), row.both) << label;
        EXPECT_EQ(formatted(row.preset, settings(without, with)), row.time) << label;
        EXPECT_EQ(formatted(row.preset, settings(with, without)), row.date) << label;
        EXPECT_EQ(formatted(row.preset, settings(without, without)), row.neither) << label;
    }
}

TEST(FormatSingle, ZeroOffsetIsTheLetterZInIso8601Only) {
    const auto inUtc = [](DateFormatPreset preset) {
        return formatSingle(march9, zone("UTC"), preset, settings(with, with)).toStdString();
    };
    EXPECT_EQ(inUtc(DateFormatPreset::Iso8601), "2024-03-09T22:05:00Z");
    EXPECT_EQ(inUtc(DateFormatPreset::Rfc2822), "Sat, 09 Mar 2024 22:05:00 +0000");
}

TEST(FormatSingle, Rfc2822IsEnglishForEveryUser) {
    EXPECT_EQ(
        formatted(DateFormatPreset::Rfc2822, settings(with, with, "fr_FR")),
        "Sat, 09 Mar 2024 14:05:00 -0800");
}

TEST(FormatSingle, LocaleNamesMonthsAndDaysWithinTheEnglishLayout) {
    EXPECT_EQ(
        formatted(DateFormatPreset::WithDayOfWeek, settings(with, without, "fr_FR")),
        "samedi, mars 9, 2024");
}

TEST(FormatSingle, FormatsForMachinesAreTheSameAsciiInEveryLocale) {
    int32_t count = 0;
    const auto* locales = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 700);
    using enum DateFormatPreset;
    for (int32_t i = 0; i < count; ++i) {
        const char* name = locales[i].getName();
        for (const auto preset : {Iso8601, Rfc2822, UnixTimestamp}) {
            for (const bool date : {with, without}) {
                EXPECT_EQ(
                    formatted(preset, settings(date, with, name)),
                    formatted(preset, settings(date, with)))
                    << name;
            }
        }
    }
}

TEST(FormatSingle, UnixTimestampTruncatesTowardZeroInAnyZone) {
    const auto timestamp = [](double seconds, const char* zoneName) {
        return formatSingle(
                   {seconds}, zone(zoneName), DateFormatPreset::UnixTimestamp, settings(with, with))
            .toStdString();
    };
    EXPECT_EQ(timestamp(-0.5, "UTC"), "0");
    EXPECT_EQ(timestamp(1, "Asia/Tokyo"), "1");
    EXPECT_EQ(timestamp(-1.5, "America/New_York"), "-1");
    EXPECT_EQ(timestamp(1710021900.999, "UTC"), "1710021900");
    EXPECT_EQ(timestamp(-9223372036854775808.0, "UTC"), "-9223372036854775808");
    EXPECT_EQ(timestamp(9223372036854774784.0, "UTC"), "9223372036854774784");
}

TEST(FormatSingleDeathTest, UnixTimestampBeyond64BitsStopsTheProcess) {
    const auto timestamp = [](double seconds) {
        static_cast<void>(formatSingle(
            {seconds}, ZoneDatabase::utc(), DateFormatPreset::UnixTimestamp, settings(with, with)));
    };
    using Limits = std::numeric_limits<double>;
    // Nothing is said on the way down.
    for (const double seconds :
         {9223372036854775808.0,
          -9223372036854777856.0,
          Limits::infinity(),
          -Limits::infinity(),
          Limits::quiet_NaN()})
        EXPECT_EXIT(timestamp(seconds), testing::KilledBySignal(SIGABRT), "^$") << seconds;
}

TEST(FormatSingle, CustomPatternIsTakenAsItIs) {
    const auto custom = [](const QString& pattern) {
        return formatted(DateFormatPreset::Custom, {with, with, pattern, locale("en_US")});
    };
    EXPECT_EQ(custom(u""_s), "");
    EXPECT_EQ(custom(u"'Week' w"_s), "Week 10");
    EXPECT_EQ(custom(u"h 'o''clock' a"_s), "2 o'clock PM");
}

} // namespace
} // namespace quorvane
