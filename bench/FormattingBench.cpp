// SPDX-License-Identifier: MIT
#include <composition/ComposedOutput.h>
#include <composition/FormatSingle.h>
#include <testing/FixedCurrentZone.h>
#include <time/CurrentZone.h>
#include <time/DateText.h>
#include <time/ZoneDatabase.h>

#include <benchmark/benchmark.h>

#include <utility>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr Instant instant{1710021900}; // 2024-03-09T22:05:00Z

FormatSettings americanSettings() {
    return {true, true, u"yyyy-MM-dd HH:mm zzz"_s, UserLocale::named(u"en_US"_s)};
}

/// The first zones by country, so that each has its own offset data.
std::vector<TimeZone> someZones(std::size_t count) {
    const ZoneDatabase database;
    std::vector<TimeZone> zones;
    for (const auto& identifier : database.zonesByCountry()) {
        if (zones.size() == count)
            break;
        if (auto zone = database.zone(identifier))
            zones.push_back(*std::move(zone));
    }
    return zones;
}

void readDatabase(benchmark::State& state) {
    for ([[maybe_unused]] const auto round : state)
        benchmark::DoNotOptimize(ZoneDatabase());
}

void formatOneInstant(benchmark::State& state) {
    const auto preset = allDateFormatPresets[static_cast<std::size_t>(state.range(0))];
    const auto zone = *ZoneDatabase().zone(u"America/Los_Angeles"_s);
    const auto settings = americanSettings();
    for ([[maybe_unused]] const auto round : state)
        benchmark::DoNotOptimize(formatSingle(instant, zone, preset, settings));
    state.SetLabel(rawValue(preset).toStdString());
}

void composeOutput(benchmark::State& state) {
    const OutputRequest request{
        .preset = DateFormatPreset::LongForm,
        .settings = americanSettings(),
        .zones = someZones(static_cast<std::size_t>(state.range(0))),
        .start = instant,
        .end = {},
        .layout = MultiZoneLayout::Lines};
    const FixedCurrentZone currentZone(ZoneDatabase::utc());
    for ([[maybe_unused]] const auto round : state)
        benchmark::DoNotOptimize(composedOutput(request, currentZone));
}

void makeChipTexts(benchmark::State& state) {
    const auto zone = *ZoneDatabase().zone(u"America/Los_Angeles"_s);
    const auto locale = UserLocale::named(u"en_US"_s);
    for ([[maybe_unused]] const auto round : state) {
        benchmark::DoNotOptimize(dateChipText(instant, zone, locale));
        benchmark::DoNotOptimize(timeChipText(instant, zone, locale));
    }
}

BENCHMARK(readDatabase)->Unit(benchmark::kMicrosecond);
BENCHMARK(formatOneInstant)
    ->DenseRange(0, allDateFormatPresets.size() - 1)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(composeOutput)->Arg(1)->Arg(2)->Arg(5)->Arg(10)->Arg(20)->Unit(benchmark::kMicrosecond);
BENCHMARK(makeChipTexts)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quorvane
