// SPDX-License-Identifier: MIT
#include "PaintWatch.h"
#include "Typing.h"

#include <controls/SearchField.h>
#include <controls/Sheet.h>
#include <loop/QtMainQueue.h>
#include <panel/PanelMetrics.h>
#include <picker/TimeZonePickerView.h>
#include <picker/ZoneList.h>
#include <time/Clock.h>

#include <QImage>
#include <QStringList>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize panelSize{panelmetrics::width, 488};

/// The keys that write and take back a city, a country, an abbreviation, an offset, a name of many
/// zones and what no zone is called; an empty text is Backspace.
QStringList keysOfWords() {
    QStringList keys;
    for (const auto& word :
         {u"new york"_s, u"india"_s, u"pst"_s, u"+5:30"_s, u"pacific"_s, u"qq"_s}) {
        keys << word.split(QString(), Qt::SkipEmptyParts);
        keys << QStringList(word.size());
    }
    return keys;
}

TimeZonePickerView* makePicker(const ZoneDatabase& zones, const Clock& clock, MainQueue& queue) {
    return new TimeZonePickerView(
        {[zone = ZoneDatabase::utc()] { return std::vector{zone}; },
         [](const std::vector<TimeZone>&) {
         }},
        {u"America/New_York"_s, u"Europe/London"_s, u"Asia/Tokyo"_s},
        {zones, clock, UserLocale::named(u"en_US"_s), queue});
}

/// The picker's sheet over a panel, on an image in place of a display.
class OpenPicker {
public:
    OpenPicker(const ZoneDatabase& zones, const Clock& clock) {
        m_panel.resize(panelSize);
        m_panel.show();
        auto* sheet = new Sheet(&m_panel, makePicker(zones, clock, m_queue));
        sheet->open();
        m_field = sheet->findChild<SearchField*>();
        m_list = sheet->findChild<ZoneList*>();
    }

    [[nodiscard]] QWidget& list() { return *m_list->viewport(); }

    /// Presses a letter, or Backspace if it is given none.
    void press(QStringView letter) {
        sendKey(*m_field, letter.isEmpty() ? Qt::Key_Backspace : 0, letter.toString());
    }

private:
    QtMainQueue m_queue;
    QWidget m_panel;
    SearchField* m_field = nullptr;
    ZoneList* m_list = nullptr;
};

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

/// From the first letter in a new picker to the painted result; the picker has come to rest, as it
/// has when a person begins to type.
void typeFirstLetter(benchmark::State& state) {
    const ZoneDatabase zones;
    const SystemClock clock;
    std::vector<double> samples;
    for ([[maybe_unused]] const auto round : state) {
        OpenPicker picker(zones, clock);
        PaintWatch watch(picker.list());
        watch.settle();
        const double before = processorMilliseconds();
        const auto start = PaintWatch::Clock::now();
        picker.press(u"n");
        state.SetIterationTime(watch.untilPainted(start) / 1000);
        samples.push_back(processorMilliseconds() - before);
    }
    state.counters["worst_cpu_ms"] = *std::ranges::max_element(samples);
}

/// Words typed letter by letter and taken back the same way: from each key to the painted result.
void typeWords(benchmark::State& state) {
    const ZoneDatabase zones;
    const SystemClock clock;
    OpenPicker picker(zones, clock);
    PaintWatch watch(picker.list());
    watch.settle();
    const auto keys = keysOfWords();
    std::vector<double> samples;
    for ([[maybe_unused]] const auto round : state) {
        const auto key = keys[static_cast<qsizetype>(samples.size()) % keys.size()];
        const double before = processorMilliseconds();
        const auto start = PaintWatch::Clock::now();
        picker.press(key);
        state.SetIterationTime(watch.untilPainted(start) / 1000);
        samples.push_back(processorMilliseconds() - before);
        watch.settle();
    }
    state.counters["p99_cpu_ms"] = percentile99(samples);
}

BENCHMARK(openPicker)->Unit(benchmark::kMillisecond);
BENCHMARK(typeFirstLetter)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(typeWords)->Iterations(500)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quorvane
