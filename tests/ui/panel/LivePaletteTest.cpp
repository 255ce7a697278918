// SPDX-License-Identifier: MIT
#include "TimePickerPopover.h"

#include <controls/KeyCap.h>
#include <controls/SearchField.h>
#include <controls/Theme.h>
#include <entry/CalendarPicker.h>
#include <panel/PanelMetrics.h>
#include <panel/PopoverView.h>
#include <picker/TimeZonePickerView.h>
#include <testing/CallLog.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/FakePasteboard.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/MemoryDefaults.h>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// What every view needs, at 2024-03-09T22:05:00Z in New York.
struct World {
    VirtualMainQueue queue;
    CallLog log{queue};
    FakePasteboard pasteboard{log, queue};
    FakeKeyboardLayout layout;
    ZoneDatabase zones;
    FixedClock clock{Instant{1710021900}};
    FixedCurrentZone currentZone{*zones.zone(u"America/New_York"_s)};
    MemoryDefaults defaults;
    UserLocale locale = UserLocale::named(u"en_US"_s);
    DateTimeModel model{{clock, defaults, currentZone, zones, locale}};
    Binding<Instant> date{
        [this] { return clock.now(); },
        [](Instant) {
        }};
    std::vector<TimeZone> selection;
};

/// Fields in many parents: a change of the application's palette reaches its widgets in no order.
std::unique_ptr<QWidget> makeFields(World&) {
    constexpr int count = 24;
    auto window = std::make_unique<QWidget>();
    auto* column = new QVBoxLayout(window.get());
    for (int index = 0; index < count; ++index) {
        auto* parent = new QWidget(window.get());
        auto* row = new QHBoxLayout(parent);
        auto* pattern = new TextField({}, parent);
        pattern->setPlaceholderText(u"Pattern"_s);
        auto* search = new SearchField(u"Search"_s, {}, parent);
        search->setText(u"york"_s);
        row->addWidget(pattern);
        row->addWidget(search);
        row->addWidget(new KeyCap(u"Super"_s, parent));
        column->addWidget(parent);
    }
    return window;
}

struct View {
    const char* name;
    std::function<std::unique_ptr<QWidget>(World&)> make;
};

void PrintTo(const View& view, std::ostream* out) {
    *out << view.name;
}

const View views[] = {
    {"Panel",
     [](World& world) {
         return std::make_unique<PopoverView>(
             world.model,
             PopoverView::Dependencies{
                 world.pasteboard,
                 world.layout,
                 world.zones,
                 world.queue,
                 world.clock,
                 world.currentZone,
                 {}},
             PopoverView::Callbacks{});
     }},
    {"Calendar",
     [](World& world) {
         return std::make_unique<CalendarPicker>(
             world.date,
             nullptr,
             EntryDependencies{world.clock, world.currentZone, world.locale, {}});
     }},
    {"Time",
     [](World& world) {
         return std::make_unique<TimePickerPopover>(
             world.date, EntryDependencies{world.clock, world.currentZone, world.locale, {}});
     }},
    {"Zones",
     [](World& world) {
         return std::make_unique<TimeZonePickerView>(
             Binding<std::vector<TimeZone>>{
                 [&world] { return world.selection; },
                 [](const std::vector<TimeZone>&) {
                 }},
             QStringList{u"Asia/Tokyo"_s},
             TimeZonePickerView::Dependencies{world.zones, world.clock, world.locale, world.queue});
     }},
    {"Fields", makeFields},
};

class LivePalette : public testing::TestWithParam<View> {
protected:
    World world;

    ~LivePalette() override { QApplication::setPalette(QPalette()); }

    std::unique_ptr<QWidget> open() {
        auto view = GetParam().make(world);
        view->resize(panelmetrics::width, 640);
        view->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(view.get()));
        return view;
    }

    /// Without the focus, which only one of two windows can have.
    static QImage picture(QWidget& view) {
        if (auto* focused = view.focusWidget())
            focused->clearFocus();
        QImage image(view.size(), QImage::Format_RGB32);
        view.render(&image);
        return image;
    }

    static std::vector<QPalette> fieldPalettes(QWidget& view) {
        std::vector<QPalette> palettes;
        for (const auto* field : view.findChildren<QLineEdit*>())
            palettes.push_back(field->palette());
        return palettes;
    }
};

TEST_P(LivePalette, AViewThatLivedThroughTheChangePaintsAsOneMadeAfterIt) {
    QApplication::setPalette(builtInPalette(ColorScheme::Light));
    const auto old = open();
    const auto light = picture(*old);
    const QPalette changes[] = {
        builtInPalette(ColorScheme::Dark),
        builtInPalette(ColorScheme::Dark, ContrastLevel::Normal, QColor(0xe95420)),
        builtInPalette(ColorScheme::Light, ContrastLevel::High),
        builtInPalette(ColorScheme::Dark, ContrastLevel::High),
        builtInPalette(ColorScheme::Light)};
    for (const auto& palette : changes) {
        QApplication::setPalette(palette);
        const auto fresh = open();
        EXPECT_EQ(picture(*old), picture(*fresh));
        EXPECT_EQ(fieldPalettes(*old), fieldPalettes(*fresh));
    }
    EXPECT_EQ(picture(*old), light);
}

INSTANTIATE_TEST_SUITE_P(, LivePalette, testing::ValuesIn(views), [](const auto& test) {
    return test.param.name;
});

} // namespace
} // namespace quorvane
