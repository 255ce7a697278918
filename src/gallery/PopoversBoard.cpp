// SPDX-License-Identifier: MIT
#include "Samples.h"

#include <controls/ChoiceMenu.h>
#include <controls/DevicePixels.h>
#include <controls/MenuChip.h>
#include <controls/PopoverShadow.h>
#include <controls/SearchField.h>
#include <controls/SegmentedChip.h>
#include <controls/Sheet.h>
#include <controls/TextButton.h>
#include <controls/TextField.h>
#include <entry/CalendarPicker.h>
#include <entry/TimePickerPopover.h>
#include <gallery/PopoversBoard.h>
#include <picker/TimeZonePickerView.h>

#include <QPainter>
#include <QVBoxLayout>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize boardSize{1140, 888};
constexpr QSize panelSize{504, 516};
constexpr double popoverRadius = 10;
constexpr double panelRadius = 12;

DateBinding shown(Instant instant) {
    return {
        [instant] { return instant; },
        [](Instant) {
        }};
}

/// What the panel itself has no use for, or shows in one state only.
QWidget* makeFormControls() {
    auto* form = new QWidget;
    auto* column = new QVBoxLayout(form);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(12);
    auto* menuChip = new MenuChip({});
    menuChip->setChoices({u"Medium"_s, u"Unix Timestamp"_s}, 0);
    column->addWidget(menuChip);
    auto* segments = new SegmentedChip;
    segments->setChoices({u"None"_s, u"is"_s, u"selected"_s}, std::nullopt);
    column->addWidget(segments);
    auto* pattern = new TextField;
    pattern->setPlaceholderText(u"e.g. yyyy-MM-dd HH:mm zzz"_s);
    column->addWidget(pattern);
    column->addWidget(new SearchField(u"Search"_s));
    column->addWidget(new TextButton(u"Done"_s));
    return form;
}

} // namespace

PopoversBoard::PopoversBoard(ColorScheme scheme, QWidget* parent) : QWidget(parent) {
    setPalette(housePalette(scheme));
    setFixedSize(boardSize);
    const auto surroundings = sample::entrySurroundings();
    addPopover(new TimePickerPopover(shown(sample::now), surroundings.currentZone), {32, 32});
    addPopover(
        new CalendarPicker(
            shown(sample::later), [] { return std::optional(sample::now); }, surroundings),
        {340, 32});
    addPopover(
        new ChoiceMenu(
            {u"Long"_s, u"Medium"_s, u"Short"_s, u"ISO 8601"_s, u"RFC 2822"_s, u"Custom…"_s}, 0),
        {640, 32});
    addPopover(makeFormControls(), {852, 32});
    addPicker({32, 340}, {});
    addPicker({568, 340}, u"la"_s);
}

void PopoversBoard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    const bool isDark = colorScheme(palette()) == ColorScheme::Dark;
    painter.fillRect(rect(), isDark ? QColor(0x0e0f11) : QColor(0xc6ccd8));
    for (const auto& panel : m_panels)
        fillRounded(painter, panel, panelRadius, theme.win);
    for (const auto* popover : m_popovers) {
        paintPopoverShadow(painter, popover->geometry(), popoverRadius, theme);
        fillRounded(painter, popover->geometry(), popoverRadius, theme.pop);
    }
}

void PopoversBoard::addPopover(QWidget* content, QPoint corner) {
    content->setParent(this);
    content->setGeometry(QRect(corner, content->sizeHint()));
    m_popovers.push_back(content);
}

void PopoversBoard::addPicker(QPoint corner, const QString& query) {
    auto* panel = new QWidget(this);
    const auto newYork = sample::entrySurroundings().currentZone.current();
    auto* picker = new TimeZonePickerView(
        {[newYork] { return std::vector{newYork}; },
         [](const std::vector<TimeZone>&) {
         }},
        {u"America/New_York"_s, u"America/Los_Angeles"_s, u"Europe/London"_s, u"Asia/Tokyo"_s},
        {sample::zones(), sample::clock(), sample::locale()});
    picker->findChild<SearchField*>()->setText(query);
    // Shown rather than opened: a picture has no motion.
    auto* sheet = new Sheet(panel, picker);
    panel->setGeometry(QRect(corner, panelSize));
    sheet->show();
    m_panels.push_back(panel->geometry());
}

} // namespace quorvane
