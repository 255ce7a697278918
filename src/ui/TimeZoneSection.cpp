// SPDX-License-Identifier: MIT
#include <controls/FavoriteSuggestionChip.h>
#include <controls/IconButton.h>
#include <controls/Sheet.h>
#include <controls/TimeZoneChip.h>
#include <timezones/ZoneTexts.h>
#include <ui/PanelMetrics.h>
#include <ui/SectionLabel.h>
#include <ui/TimeZoneSection.h>

#include <QVBoxLayout>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int addReach = 4;

bool isChipOfSelected(const ZoneChip* chip) {
    return qobject_cast<const TimeZoneChip*>(chip) != nullptr;
}

} // namespace

TimeZoneSection::TimeZoneSection(
    DateTimeModel& model, const TimeZonePickerView::Surroundings& surroundings, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_surroundings(surroundings),
      m_add(new IconButton(IconButton::Kind::Section, Symbol::Plus, tr("Add time zone"), this)),
      m_flow(new FlowLayout(panelmetrics::chipSpacing)) {
    auto* label = new SectionLabel(tr("Time Zones"), Symbol::Globe, this);
    label->addTrailing(m_add, 0, addReach);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(panelmetrics::labelSpacing);
    column->addWidget(label);
    column->addLayout(m_flow);
    connect(m_add, &IconButton::clicked, this, &TimeZoneSection::showTimeZonePicker);
    refresh();
}

void TimeZoneSection::refresh() {
    const auto focused = std::ranges::find_if(m_chips, [](auto* chip) { return chip->hasFocus(); });
    const auto focusedPlace = focused - m_chips.begin();
    const bool hadFocus = focused != m_chips.end();

    std::vector<ZoneChip*> chips;
    for (const auto& slot : slotsOfModel())
        chips.push_back(takeOrMakeChip(slot));
    while (m_flow->count() > 0)
        delete m_flow->takeAt(0);
    for (auto* chip : std::exchange(m_chips, {}))
        chip->deleteLater(); // it may be what was just pressed
    m_chips = chips;
    QWidget* before = m_add;
    for (auto* chip : m_chips) {
        m_flow->addWidget(chip);
        chip->show();
        setTabOrder(before, chip);
        before = chip;
    }
    if (hadFocus && !m_chips.empty())
        m_chips[static_cast<std::size_t>(std::min(focusedPlace, std::ssize(m_chips) - 1))]
            ->setFocus(Qt::OtherFocusReason);
}

void TimeZoneSection::showTimeZonePicker() {
    if (m_picker)
        return;
    auto* picker = new TimeZonePickerView(
        {[this] { return m_model.selectedTimeZones(); },
         [this](std::vector<TimeZone> zones) {
             m_model.setSelectedTimeZones(std::move(zones));
         }},
        m_model.favoriteTimeZoneIdentifiers(),
        m_surroundings);
    m_picker = new Sheet(window(), picker);
    connect(picker, &TimeZonePickerView::done, m_picker, &Sheet::close);
    m_picker->open();
}

std::vector<TimeZoneSection::Slot> TimeZoneSection::slotsOfModel() const {
    std::vector<Slot> slots;
    for (const auto& zone : m_model.timeZoneSlots())
        slots.push_back({zone, isSelected(zone)});
    return slots;
}

bool TimeZoneSection::isSelected(const TimeZone& zone) const {
    return std::ranges::count(m_model.selectedTimeZones(), zone) > 0;
}

ZoneChip* TimeZoneSection::takeOrMakeChip(const Slot& slot) {
    const auto found = std::ranges::find_if(m_chips, [&](const auto* chip) {
        return chip->timeZone() == slot.zone && isChipOfSelected(chip) == slot.isSelected;
    });
    if (found != m_chips.end()) {
        auto* chip = *found;
        m_chips.erase(found);
        chip->setLabel(label(slot.zone));
        return chip;
    }
    const auto zone = slot.zone;
    if (slot.isSelected)
        return new TimeZoneChip(
            zone, label(zone), [this, zone] { remove(zone); }, this);
    return new FavoriteSuggestionChip(
        zone, label(zone), [this, zone] { add(zone); }, this);
}

QString TimeZoneSection::label(const TimeZone& zone) const {
    return zoneLabel(zone, m_surroundings.clock.now(), m_surroundings.locale);
}

void TimeZoneSection::add(const TimeZone& zone) {
    auto zones = m_model.selectedTimeZones();
    zones.push_back(zone);
    m_model.setSelectedTimeZones(std::move(zones));
}

void TimeZoneSection::remove(const TimeZone& zone) {
    auto zones = m_model.selectedTimeZones();
    std::erase(zones, zone);
    m_model.setSelectedTimeZones(std::move(zones));
}

} // namespace quorvane
