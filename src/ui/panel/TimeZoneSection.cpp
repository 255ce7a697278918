// SPDX-License-Identifier: MIT
#include "TimeZoneSection.h"

#include "SectionLabel.h"

#include <controls/IconButton.h>
#include <controls/Sheet.h>
#include <panel/FavoriteSuggestionChip.h>
#include <panel/PanelMetrics.h>
#include <panel/TimeZoneChip.h>
#include <timezones/ZoneTexts.h>

#include <QVBoxLayout>

#include <algorithm>

namespace quorvane {

namespace {

bool isChipOfSelected(const ZoneChip* chip) {
    return qobject_cast<const TimeZoneChip*>(chip) != nullptr;
}

/// What is gone must not show, nor be found, until it is deleted; it may be what was just pressed.
void discard(ZoneChip* chip) {
    chip->hide();
    chip->setParent(nullptr);
    chip->deleteLater();
}

} // namespace

TimeZoneSection::TimeZoneSection(
    DateTimeModel& model, const TimeZonePickerView::Dependencies& dependencies, QWidget* parent)
    : Section(tr("Time Zones"), Symbol::Globe, parent),
      m_model(model),
      m_dependencies(dependencies),
      m_add(new IconButton(IconButton::Kind::Section, Symbol::Plus, tr("Add time zone"), this)),
      m_flow(new FlowLayout(panelmetrics::chipSpacing)) {
    label().addTrailing(m_add, SectionLabel::End::BeyondColumn);
    body().addLayout(m_flow);
    connect(m_add, &IconButton::clicked, this, &TimeZoneSection::showTimeZonePicker);
}

void TimeZoneSection::refresh() {
    const auto before = m_chips;
    std::vector<ZoneChip*> chips;
    for (const auto& slot : slotsOfModel())
        chips.push_back(takeOrMakeChip(slot));
    const auto gone = std::exchange(m_chips, chips);
    if (m_chips == before)
        return;
    layOutChips();
    moveFocusFrom(before);
    for (auto* chip : gone)
        discard(chip);
}

void TimeZoneSection::layOutChips() {
    while (m_flow->count() > 0)
        delete m_flow->takeAt(0);
    QWidget* before = m_add;
    for (auto* chip : m_chips) {
        m_flow->addWidget(chip);
        chip->show();
        setTabOrder(before, chip);
        before = chip;
    }
    m_focus.setChips(m_chips);
}

void TimeZoneSection::moveFocusFrom(const std::vector<ZoneChip*>& before) {
    const auto focused = std::ranges::find_if(before, [](auto* chip) { return chip->hasFocus(); });
    if (focused == before.end() || std::ranges::count(m_chips, *focused) > 0)
        return;
    QWidget* heir = m_focus.stop();
    (heir != nullptr ? heir : m_add)->setFocus(Qt::OtherFocusReason);
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
        m_dependencies);
    m_picker = new Sheet(window(), picker);
    connect(picker, &TimeZonePickerView::done, m_picker, &Sheet::dismiss);
    m_picker->open();
}

bool TimeZoneSection::isPicking() const {
    return m_picker && !m_picker->isHidden();
}

std::vector<TimeZoneSection::Slot> TimeZoneSection::slotsOfModel() const {
    const auto zones = m_model.timeZoneSlots();
    const auto labels = zoneLabels(zones, m_dependencies.clock.now(), m_dependencies.locale);
    std::vector<Slot> slots;
    for (const auto& zone : zones)
        slots.push_back({zone, labels[std::ssize(slots)], isSelected(zone)});
    return slots;
}

bool TimeZoneSection::isSelected(const TimeZone& zone) const {
    return std::ranges::count(m_model.selectedTimeZones(), zone) > 0;
}

ZoneChip* TimeZoneSection::takeOrMakeChip(const Slot& slot) {
    const auto found = std::ranges::find_if(m_chips, [&](const auto* chip) {
        return chip->timeZone() == slot.zone && isChipOfSelected(chip) == slot.isSelected;
    });
    ZoneChip* chip = nullptr;
    if (found != m_chips.end()) {
        chip = *found;
        m_chips.erase(found);
    } else {
        chip = makeChip(slot);
    }
    chip->setTexts(slot.label, placeAndOffset(slot.zone, m_dependencies.clock.now()));
    return chip;
}

ZoneChip* TimeZoneSection::makeChip(const Slot& slot) {
    const auto zone = slot.zone;
    if (slot.isSelected)
        return new TimeZoneChip(
            zone, slot.label, [this, zone] { remove(zone); }, this);
    return new FavoriteSuggestionChip(
        zone, slot.label, [this, zone] { add(zone); }, this);
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
