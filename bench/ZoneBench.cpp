// SPDX-License-Identifier: MIT
#include "Typing.h"

#include <timezones/ZoneSearch.h>

#include <benchmark/benchmark.h>

#include <array>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr Instant instant{1710021900}; // 2024-03-09T22:05:00Z

UserLocale american() {
    return UserLocale::named(u"en_US"_s);
}

// Those that the first rules answer, those that only names answer, and one that nothing answers.
constexpr std::array queries{
    QLatin1StringView(""),
    QLatin1StringView("a"),
    QLatin1StringView("la"),
    QLatin1StringView("new york"),
    QLatin1StringView("pst"),
    QLatin1StringView("gmt+5:30"),
    QLatin1StringView("pacific"),
    QLatin1StringView("no such place"),
};

void buildCatalogue(benchmark::State& state) {
    const ZoneDatabase database;
    for ([[maybe_unused]] const auto round : state)
        benchmark::DoNotOptimize(TimeZoneCatalogue(database, instant));
}

/// The query that opens the search of a new list; nothing of an earlier search is at hand.
void searchFirst(benchmark::State& state) {
    const TimeZoneCatalogue catalogue(ZoneDatabase(), instant);
    for ([[maybe_unused]] const auto round : state)
        benchmark::DoNotOptimize(ZoneSearch(catalogue, american()).results(u"x"_s, instant));
}

void searchKeystroke(benchmark::State& state) {
    const auto query = queries[static_cast<std::size_t>(state.range(0))];
    const ZoneSearch search(TimeZoneCatalogue(ZoneDatabase(), instant), american());
    benchmark::DoNotOptimize(search.results(u"first"_s, instant));
    std::vector<double> samples;
    auto now = instant;
    for ([[maybe_unused]] const auto round : state) {
        now = now + Seconds(0.1); // no two keystrokes are at the same instant
        const double start = processorMilliseconds();
        benchmark::DoNotOptimize(search.results(query, now));
        samples.push_back(1000 * (processorMilliseconds() - start));
    }
    state.SetLabel('"' + QString(query).toStdString() + '"');
    state.counters["p99_us"] = percentile99(samples);
}

BENCHMARK(buildCatalogue)->Unit(benchmark::kMicrosecond);
BENCHMARK(searchFirst)->Unit(benchmark::kMicrosecond);
BENCHMARK(searchKeystroke)->DenseRange(0, queries.size() - 1)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quorvane
