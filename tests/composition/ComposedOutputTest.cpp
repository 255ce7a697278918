// SPDX-License-Identifier: MIT
#include "Samples.h"

#include <composition/ComposedOutput.h>
#include <testing/FixedCurrentZone.h>

#include <QStringList>
#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

using namespace samples;

std::string output(const OutputRequest& request) {
    return composedOutput(request, FixedCurrentZone(zone("Asia/Tokyo"))).toStdString();
}

/// London and Los Angeles, selected in this order.
OutputRequest twoZones(DateFormatPreset preset) {
    return {
        .preset = preset,
        .settings = settings(with, with),
        .zones = zones({"Europe/London", "America/Los_Angeles"}),
        .start = march9,
        .end = {},
        .layout = MultiZoneLayout::Inline};
}

TEST(ComposedOutput, ZonesGoFromWestToEast) {
    auto request = twoZones(DateFormatPreset::LongForm);
    EXPECT_EQ(output(request), "March 9, 2024 at 2:05 PM PST / March 9, 2024 at 10:05 PM GMT");
    request.layout = MultiZoneLayout::Lines;
    EXPECT_EQ(output(request), "March 9, 2024 at 2:05 PM PST\nMarch 9, 2024 at 10:05 PM GMT");
}

TEST(ComposedOutput, EachZoneShowsTheWholeRange) {
    auto request = twoZones(DateFormatPreset::Rfc2822);
    request.end = march9 + Seconds(hour);
    EXPECT_EQ(
        output(request),
        "Sat, 09 Mar 2024 14:05:00 -0800 – Sat, 09 Mar 2024 15:05:00 -0800 / "
        "Sat, 09 Mar 2024 22:05:00 +0000 – Sat, 09 Mar 2024 23:05:00 +0000");
}

TEST(ComposedOutput, UnixTimestampIsShownOnce) {
    auto request = twoZones(DateFormatPreset::UnixTimestamp);
    request.layout = MultiZoneLayout::Lines;
    EXPECT_EQ(output(request), "1710021900");
    request.end = march9 + Seconds(hour);
    EXPECT_EQ(output(request), "1710021900 – 1710025500");
}

TEST(ComposedOutput, WithoutTimeThereIsOneTextInTheFirstSelectedZone) {
    auto request = twoZones(DateFormatPreset::WithDayOfWeek);
    request.settings = settings(with, without);
    request.zones = zones({"Pacific/Kiritimati", "America/Los_Angeles"});
    EXPECT_EQ(output(request), "Sunday, March 10, 2024");
}

TEST(ComposedOutput, WithTimeAndNoZonesItIsEmpty) {
    for (const auto preset : allDateFormatPresets) {
        auto request = twoZones(preset);
        request.zones.clear();
        const auto* expected = preset == DateFormatPreset::UnixTimestamp ? "1710021900" : "";
        EXPECT_EQ(output(request), expected) << rawValue(preset).toStdString();
    }
}

TEST(ComposedOutput, WithoutTimeAndZonesItIsInTheCurrentZone) {
    auto request = twoZones(DateFormatPreset::LongForm);
    request.zones.clear();
    request.settings = settings(with, without);
    EXPECT_EQ(output(request), "March 10, 2024");
}

TEST(ComposedOutput, EqualOffsetsKeepTheOrderOfSelection) {
    auto request = twoZones(DateFormatPreset::Custom);
    request.settings.customPattern = QStringLiteral("VVV");
    request.zones = zones({"Europe/Paris", "UTC", "Europe/Berlin"});
    EXPECT_EQ(output(request), "Unknown City / Paris / Berlin");
    request.zones = zones({"Europe/Berlin", "Europe/Paris"});
    EXPECT_EQ(output(request), "Berlin / Paris");
}

TEST(ComposedOutput, EqualOffsetsKeepTheirOrderHoweverManyThereAre) {
    // Sorting that is not stable goes unnoticed with few elements.
    auto request = twoZones(DateFormatPreset::Custom);
    request.settings.customPattern = QStringLiteral("VVV");
    request.zones.clear();
    QStringList expected;
    for (int pair = 0; pair < 30; ++pair) {
        request.zones.push_back(zone("Europe/Paris"));
        request.zones.push_back(zone("Europe/Berlin"));
        expected << QStringLiteral("Paris") << QStringLiteral("Berlin");
    }
    EXPECT_EQ(output(request), expected.join(QStringLiteral(" / ")).toStdString());
}

TEST(ComposedOutput, OrderIsThatAtTheStartOfARange) {
    // Phoenix is level with Denver in winter and an hour behind it in summer.
    auto request = twoZones(DateFormatPreset::Iso8601);
    request.settings = settings(without, with);
    request.zones = zones({"America/Denver", "America/Phoenix"});
    request.end = march9 + Seconds(24 * hour);
    EXPECT_EQ(output(request), "15:05:00-0700 – 16:05:00-0600 / 15:05:00-0700 – 15:05:00-0700");
    std::swap(request.start, *request.end);
    EXPECT_EQ(output(request), "15:05:00-0700 – 15:05:00-0700 / 16:05:00-0600 – 15:05:00-0700");
}

TEST(ComposedOutput, OneZoneHasNoSeparator) {
    auto request = twoZones(DateFormatPreset::LongForm);
    request.zones = zones({"Europe/London"});
    request.layout = MultiZoneLayout::Lines;
    EXPECT_EQ(output(request), "March 9, 2024 at 10:05 PM GMT");
}

TEST(ComposedOutput, RangeOfDates) {
    auto request = twoZones(DateFormatPreset::DateOnly);
    request.settings = settings(with, without);
    request.end = march9 + Seconds(24 * hour);
    EXPECT_EQ(output(request), "March 9, 2024 – March 10, 2024");
}

TEST(ComposedOutput, SeparatorOfARangeIsAnEnDash) {
    auto request = twoZones(DateFormatPreset::UnixTimestamp);
    request.end = request.start;
    EXPECT_EQ(output(request), "1710021900 \xE2\x80\x93 1710021900");
}

} // namespace
} // namespace quorvane
