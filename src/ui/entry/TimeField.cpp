// SPDX-License-Identifier: MIT
#include "TimePickerPopover.h"

#include <entry/TimeField.h>

#include <time/DateText.h>
#include <utility>

namespace quorvane {

TimeField::TimeField(DateBinding date, const EntrySurroundings& surroundings, QWidget* parent)
    : FieldChip(Symbol::Clock, surroundings.popoverEffects, parent),
      m_date(std::move(date)),
      m_surroundings(surroundings) {
    refresh();
}

void TimeField::refresh() {
    showText(
        timeChipText(m_date.get(), m_surroundings.currentZone.current(), m_surroundings.locale));
}

QWidget* TimeField::makeContent() {
    const auto set = [this](Instant date) {
        m_date.set(date);
        refresh();
    };
    return new TimePickerPopover({m_date.get, set}, m_surroundings.currentZone);
}

} // namespace quorvane
