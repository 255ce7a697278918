// SPDX-License-Identifier: MIT
#include <app/Panel.h>
#include <loop/QtMainQueue.h>
#include <panel/OutputPreview.h>
#include <panel/PopoverView.h>
#include <testing/CallLog.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/FakePasteboard.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/MemoryDefaults.h>

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using SteadyClock = std::chrono::steady_clock;

constexpr int keystrokes = 200;

double milliseconds(SteadyClock::duration span) {
    return std::chrono::duration<double, std::milli>(span).count();
}

/// The panel with everything in it, on a desktop that only remembers what it is told.
class PanelFixture {
public:
    explicit PanelFixture(const QStringList& zones) {
        std::vector<TimeZone> selected;
        for (const auto& identifier : zones)
            selected.push_back(*m_zones.zone(identifier));
        m_model.setSelectedTimeZones(std::move(selected));
    }

    DateTimeModel& model() { return m_model; }

    Panel& panel() { return *m_panel; }

    void open() {
        m_panel = std::make_unique<Panel>(new PopoverView(
            m_model,
            {m_pasteboard, m_layout, m_zones, m_queue, m_clock, m_currentZone, {}},
            {[] {},
             [] {},
             [] {},
             [] {},
             [] {
             }}));
        QObject::connect(m_panel.get(), &Panel::fittingHeightChanged, m_panel.get(), [this] {
            m_panel->resize(m_panel->width(), m_panel->fittingHeight());
        });
        m_panel->resize(m_panel->width(), m_panel->fittingHeight());
        m_panel->show();
    }

private:
    QtMainQueue m_queue;
    VirtualMainQueue m_fakesQueue;
    CallLog m_log{m_fakesQueue};
    FakePasteboard m_pasteboard{m_log, m_fakesQueue};
    FakeKeyboardLayout m_layout;
    ZoneDatabase m_zones;
    FixedClock m_clock{Instant{1710021900}}; // 2024-03-09T22:05:00Z
    FixedCurrentZone m_currentZone{*m_zones.zone(u"America/New_York"_s)};
    MemoryDefaults m_defaults;
    DateTimeModel m_model{
        {m_clock, m_defaults, m_currentZone, m_zones, UserLocale::named(u"en_US"_s)}};
    std::unique_ptr<Panel> m_panel;
};

/// Waits, in the event loop, until a widget has been painted.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    /// From `start` to the end of the event-loop iteration that paints the widget.
    double untilPainted(SteadyClock::time_point start) {
        m_isPainted = false;
        while (!m_isPainted)
            m_loop.processEvents(QEventLoop::WaitForMoreEvents);
        return milliseconds(SteadyClock::now() - start);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        m_isPainted = m_isPainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoop m_loop;
    bool m_isPainted = false;
};

void settle() {
    QEventLoop loop;
    while (loop.processEvents(QEventLoop::AllEvents))
        continue;
}

void report(benchmark::State& state, std::vector<double> samples) {
    std::ranges::sort(samples);
    state.counters["median_ms"] = samples[samples.size() / 2];
    state.counters["worst_ms"] = samples.back();
}

void sendKey(QWidget& receiver, int key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&receiver, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&receiver, &release);
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
    settle();
    PaintWatch watch(*previewOf(fixture.panel()).viewport());
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
        settle();
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
        settle();
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
    settle();
    auto& preview = previewOf(fixture.panel());
    PaintWatch watch(*preview.viewport());
    std::vector<double> samples;
    for ([[maybe_unused]] const auto round : state) {
        const auto start = SteadyClock::now();
        preview.setOutput(output.text);
        const double sample = watch.untilPainted(start);
        state.SetIterationTime(sample / 1000);
        samples.push_back(sample);
        preview.setOutput({});
        settle();
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
