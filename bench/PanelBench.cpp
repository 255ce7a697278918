// SPDX-License-Identifier: MIT
#include "PaintWatch.h"
#include "PanelFixture.h"
#include "Typing.h"

#include <panel/OutputPreview.h>

#include <QLineEdit>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using SteadyClock = PaintWatch::Clock;

constexpr int keystrokes = 200;

void report(benchmark::State& state, std::vector<double> samples) {
    std::ranges::sort(samples);
    state.counters["median_ms"] = samples[samples.size() / 2];
    state.counters["worst_ms"] = samples.back();
}

OutputPreview& previewOf(QWidget& panel) {
    return *panel.findChild<OutputPreview*>();
}

QLineEdit& patternOf(QWidget& panel) {
    const auto fields = panel.findChildren<QLineEdit*>();
    return **std::ranges::find(fields, u"Custom format"_s, &QLineEdit::accessibleName);
}

/// From a key in the pattern's field to the painted preview, with eight zones in rows.
void typePattern(benchmark::State& state) {
    PanelFixture fixture(
        {u"America/New_York"_s,
         u"America/Los_Angeles"_s,
         u"Europe/London"_s,
         u"Europe/Berlin"_s,
         u"Asia/Tokyo"_s,
         u"Asia/Singapore"_s,
         u"Australia/Sydney"_s,
         u"Asia/Kolkata"_s});
    fixture.model().setFormatPreset(DateFormatPreset::Custom);
    fixture.model().setCustomFormatString(u"EEEE d MMMM yyyy HH:mm zzz"_s);
    fixture.model().setMultiZoneLayout(MultiZoneLayout::Lines);
    fixture.open();
    auto& pattern = patternOf(fixture.panel());
    pattern.setFocus();
    PaintWatch watch(*previewOf(fixture.panel()).viewport());
    watch.settle();
    std::vector<double> samples;
    bool isLonger = false;
    for ([[maybe_unused]] const auto round : state) {
        const auto start = SteadyClock::now();
        isLonger = !isLonger;
        if (isLonger)
            sendKey(pattern, Qt::Key_S, u"s"_s);
        else
            sendKey(pattern, Qt::Key_Backspace, {});
        const double sample = watch.untilPainted(start);
        state.SetIterationTime(sample / 1000);
        samples.push_back(sample);
        watch.settle();
    }
    report(state, samples);
}

/// From nothing to the first painted panel; the first of the process reads fonts and symbols.
void openPanel(benchmark::State& state) {
    std::vector<double> samples;
    for ([[maybe_unused]] const auto round : state) {
        PanelFixture fixture({u"America/New_York"_s});
        const auto start = SteadyClock::now();
        fixture.open();
        PaintWatch watch(*previewOf(fixture.panel()).viewport());
        const double sample = watch.untilPainted(start);
        state.SetIterationTime(sample / 1000);
        samples.push_back(sample);
        watch.settle();
    }
    report(state, samples);
}

struct LongOutput {
    const char* name;
    QString text;
};

LongOutput longOutput(std::int64_t kind) {
    constexpr int length = 100'000;
    const std::array outputs{
        LongOutput{"one line", QString(length, u'm')},
        LongOutput{"20 000 lines", u"2024\n"_s.repeated(length / 5)},
        LongOutput{"right to left", u"\u05D0\u05D1\u05D2\u05D3\u05D4"_s.repeated(length / 5)},
        LongOutput{"emoji", u"\U0001F600"_s.repeated(length / 2)},
    };
    return outputs.at(static_cast<std::size_t>(kind));
}

/// From a very long output to the painted preview in a panel of the height that this asks for.
void showLongOutput(benchmark::State& state) {
    const auto output = longOutput(state.range(0));
    PanelFixture fixture({u"America/New_York"_s});
    fixture.open();
    auto& preview = previewOf(fixture.panel());
    PaintWatch watch(*preview.viewport());
    watch.settle();
    std::vector<double> samples;
    for ([[maybe_unused]] const auto round : state) {
        const auto start = SteadyClock::now();
        preview.setOutput(output.text);
        const double sample = watch.untilPainted(start);
        state.SetIterationTime(sample / 1000);
        samples.push_back(sample);
        preview.setOutput({});
        watch.settle();
    }
    state.SetLabel(output.name);
    report(state, samples);
}

// First, so that nothing of the process is warm.
BENCHMARK(openPanel)
    ->Name("openFirstPanel")
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(openPanel)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(typePattern)->Iterations(keystrokes)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(showLongOutput)
    ->DenseRange(0, 3)
    ->Iterations(20)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quorvane
