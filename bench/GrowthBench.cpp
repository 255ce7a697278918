// SPDX-License-Identifier: MIT
#include "PaintWatch.h"
#include "PanelFixture.h"

#include <composition/ComposedOutput.h>
#include <panel/OutputPreview.h>
#include <time/DateText.h>

#include <benchmark/benchmark.h>

#include <vector>

// How times grow with what there is to do. Their names begin with "growth".
namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr Instant instant{1710021900}; // 2024-03-09T22:05:00Z
constexpr int megabyte = 1 << 20;

/// As many of the world's zones, or all of them.
QStringList manyZones(std::int64_t count) {
    return ZoneDatabase().zonesByCountry().mid(0, count);
}

UserLocale american() {
    return UserLocale::named(u"en_US"_s);
}

void outputByZones(benchmark::State& state) {
    const ZoneDatabase database;
    const OutputRequest request{
        .preset = DateFormatPreset::LongForm,
        .settings =
            {.includeDate = true, .includeTime = true, .customPattern = {}, .locale = american()},
        .zones = database.zones(manyZones(state.range(0))),
        .start = instant,
        .end = {},
        .layout = MultiZoneLayout::Lines};
    const FixedCurrentZone currentZone(ZoneDatabase::utc());
    for ([[maybe_unused]] const auto round : state)
        benchmark::DoNotOptimize(composedOutput(request, currentZone));
}

void openWith(benchmark::State& state, const QStringList& zones, const QStringList& favourites) {
    for ([[maybe_unused]] const auto round : state) {
        PanelFixture fixture(zones);
        fixture.model().setFavoriteTimeZoneIdentifiers(favourites);
        const auto start = PaintWatch::Clock::now();
        fixture.open();
        PaintWatch watch(*fixture.panel().findChild<OutputPreview*>()->viewport());
        state.SetIterationTime(watch.untilPainted(start) / 1000);
        watch.settle();
    }
}

/// From nothing to the first painted panel.
void panelByZones(benchmark::State& state) {
    openWith(state, manyZones(state.range(0)), {});
}

/// Likewise; each favourite that is not selected is suggested.
void panelByFavourites(benchmark::State& state) {
    openWith(state, {u"America/New_York"_s}, manyZones(state.range(0)));
}

/// From a further zone to the painted panel.
void changeByZones(benchmark::State& state) {
    PanelFixture fixture(manyZones(state.range(0)));
    fixture.model().setMultiZoneLayout(MultiZoneLayout::Lines);
    fixture.open();
    PaintWatch watch(*fixture.panel().findChild<OutputPreview*>()->viewport());
    watch.settle();
    const auto all = fixture.model().selectedTimeZones();
    bool isLess = false;
    for ([[maybe_unused]] const auto round : state) {
        isLess = !isLess;
        const auto start = PaintWatch::Clock::now();
        fixture.model().setSelectedTimeZones({all.begin(), all.end() - (isLess ? 1 : 0)});
        state.SetIterationTime(watch.untilPainted(start) / 1000);
        watch.settle();
    }
}

void textByPattern(benchmark::State& state) {
    const auto unit = u"yyyy-MM-dd HH:mm "_s;
    const auto pattern = unit.repeated(state.range(0) / unit.size() + 1).first(state.range(0));
    const auto zone = *ZoneDatabase().zone(u"America/Los_Angeles"_s);
    const auto locale = american();
    for ([[maybe_unused]] const auto round : state)
        benchmark::DoNotOptimize(patternText(instant, zone, pattern, locale));
}

void zones(benchmark::internal::Benchmark* benchmark) {
    for (const int count : {2, 10, 50, 100, 200, 418})
        benchmark->Arg(count);
}

BENCHMARK(outputByZones)->Name("growth/outputByZones")->Apply(zones)->Unit(benchmark::kMillisecond);
BENCHMARK(panelByZones)
    ->Name("growth/panelByZones")
    ->Apply(zones)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(changeByZones)
    ->Name("growth/changeByZones")
    ->Apply(zones)
    ->Iterations(6)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(panelByFavourites)
    ->Name("growth/panelByFavourites")
    ->Apply(zones)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(textByPattern)
    ->Name("growth/textByPattern")
    ->RangeMultiplier(8)
    ->Range(megabyte >> 12, megabyte)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quorvane
