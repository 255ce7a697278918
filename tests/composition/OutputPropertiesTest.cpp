// SPDX-License-Identifier: MIT
#include "Samples.h"

#include <composition/ComposedOutput.h>
#include <composition/ZoneSlots.h>
#include <support/Draws.h>
#include <testing/FixedCurrentZone.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace samples;

constexpr int rounds = 300;

/// Of several offsets, some with the same one, in both halves of the Earth.
std::vector<TimeZone> drawnZones(Draws& draws) {
    static const auto all = zones(
        {"UTC",
         "Europe/London",
         "Africa/Abidjan",
         "America/New_York",
         "America/Toronto",
         "Asia/Kolkata",
         "Australia/Lord_Howe",
         "Pacific/Apia",
         "Etc/GMT+12"});
    std::vector<TimeZone> drawn;
    for (int count = draws.number(0, 5); count > 0; --count) {
        const auto& zone = draws.oneOf(all);
        if (std::ranges::find(drawn, zone) == drawn.end())
            drawn.push_back(zone);
    }
    return drawn;
}

/// From 1900 to 2100.
Instant drawnInstant(Draws& draws) {
    return {std::floor(draws.number(-2208988800.0, 4102444800.0))};
}

OutputRequest drawnRequest(Draws& draws) {
    OutputRequest request{
        .preset = draws.oneOf(allDateFormatPresets),
        .settings = settings(draws.flag(), draws.flag()),
        .zones = drawnZones(draws),
        .start = drawnInstant(draws),
        .end = {},
        .layout = draws.oneOf(allMultiZoneLayouts)};
    if (draws.flag())
        request.end = drawnInstant(draws);
    return request;
}

QString piece(const OutputRequest& request, const TimeZone& zone) {
    auto text = formatSingle(request.start, zone, request.preset, request.settings);
    if (request.end)
        text += u" – "_s + formatSingle(*request.end, zone, request.preset, request.settings);
    return text;
}

/// Takes the westernmost of those that are left, the one that was selected first among equals.
QStringList piecesFromWestToEast(const OutputRequest& request) {
    QStringList pieces;
    auto left = request.zones;
    while (!left.empty()) {
        auto next = left.begin();
        for (auto each = left.begin(); each != left.end(); ++each) {
            if (each->secondsFromGMT(request.start) < next->secondsFromGMT(request.start))
                next = each;
        }
        pieces.append(piece(request, *next));
        left.erase(next);
    }
    return pieces;
}

TEST(OutputProperties, EveryOutputFollowsTheRules) {
    Draws draws;
    SCOPED_TRACE(draws.origin());
    const auto here = zone("Asia/Tokyo");
    const FixedCurrentZone currentZone(here);
    for (int round = 0; round < rounds; ++round) {
        const auto request = drawnRequest(draws);
        const bool isOne =
            request.preset == DateFormatPreset::UnixTimestamp || !request.settings.includeTime;
        const auto pieces =
            isOne ? QStringList(piece(request, request.zones.empty() ? here : request.zones[0]))
                  : piecesFromWestToEast(request);
        const auto separator = request.layout == MultiZoneLayout::Inline ? u" / "_s : u"\n"_s;
        EXPECT_EQ(composedOutput(request, currentZone), pieces.join(separator));
    }
}

TEST(OutputProperties, SelectionDecidesWhatIsShownButNotTheOrderOfOffsets) {
    Draws draws;
    SCOPED_TRACE(draws.origin());
    const FixedCurrentZone currentZone(ZoneDatabase::utc());
    for (int round = 0; round < rounds; ++round) {
        auto request = drawnRequest(draws);
        request.settings.includeTime = true;
        request.preset = DateFormatPreset::Iso8601;
        request.layout = MultiZoneLayout::Lines;
        auto lines = composedOutput(request, currentZone).split(u'\n');
        std::ranges::reverse(request.zones);
        auto reversed = composedOutput(request, currentZone).split(u'\n');
        lines.sort();
        reversed.sort();
        EXPECT_EQ(lines, reversed);
    }
}

TEST(OutputProperties, SlotsAreTheFavouritesAndThenWhatElseIsSelected) {
    Draws draws;
    SCOPED_TRACE(draws.origin());
    const ZoneDatabase database;
    for (int round = 0; round < rounds; ++round) {
        const auto favorites = drawnZones(draws);
        const auto selected = drawnZones(draws);
        QStringList identifiers;
        auto expected = favorites;
        for (const auto& zone : favorites) {
            identifiers << zone.identifier();
            if (draws.flag())
                identifiers << u"No/Where"_s;
        }
        for (const auto& zone : selected) {
            if (std::ranges::find(favorites, zone) == favorites.end())
                expected.push_back(zone);
        }
        EXPECT_EQ(timeZoneSlots(identifiers, selected, database), expected);
    }
}

} // namespace
} // namespace quorvane
