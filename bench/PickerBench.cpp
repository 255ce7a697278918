// SPDX-License-Identifier: MIT
#include <controls/SearchField.h>
#include <controls/Sheet.h>
#include <loop/QtMainQueue.h>
#include <panel/PanelMetrics.h>
#include <picker/TimeZonePickerView.h>
#include <time/Clock.h>

#include <QImage>
#include <benchmark/benchmark.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize panelSize{panelmetrics::width, 488};

TimeZonePickerView* makePicker(const ZoneDatabase& zones, const Clock& clock, MainQueue& queue) {
    return new TimeZonePickerView(
        {[zone = ZoneDatabase::utc()] { return std::vector{zone}; },
         [](const std::vector<TimeZone>&) {
         }},
        {u"America/New_York"_s, u"Europe/London"_s, u"Asia/Tokyo"_s},
        {zones, clock, UserLocale::named(u"en_US"_s), queue});
}

/// From the click to the painted sheet.
void openPicker(benchmark::State& state) {
    const ZoneDatabase zones;
    const SystemClock clock;
    QtMainQueue queue;
    QWidget panel;
    panel.resize(panelSize);
    panel.show();
    QImage screen(panelSize, QImage::Format_ARGB32_Premultiplied);
    for ([[maybe_unused]] const auto round : state) {
        auto* sheet = new Sheet(&panel, makePicker(zones, clock, queue));
        sheet->open();
        panel.render(&screen);
        state.PauseTiming();
        delete sheet;
        state.ResumeTiming();
    }
}

/// A letter typed into the open picker, to the painted result.
void typeLetter(benchmark::State& state) {
    const ZoneDatabase zones;
    const SystemClock clock;
    QtMainQueue queue;
    QWidget panel;
    panel.resize(panelSize);
    panel.show();
    auto* sheet = new Sheet(&panel, makePicker(zones, clock, queue));
    sheet->open();
    auto* field = sheet->findChild<SearchField*>();
    QImage screen(panelSize, QImage::Format_ARGB32_Premultiplied);
    panel.render(&screen);
    bool isLonger = false;
    for ([[maybe_unused]] const auto round : state) {
        isLonger = !isLonger;
        field->setText(isLonger ? u"pac"_s : u"pa"_s);
        panel.render(&screen);
    }
}

BENCHMARK(openPicker)->Unit(benchmark::kMillisecond);
BENCHMARK(typeLetter)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quorvane
