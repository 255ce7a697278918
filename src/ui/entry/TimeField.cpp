// SPDX-License-Identifier: MIT
#include "TimePickerPopover.h"

#include <entry/TimeField.h>
#include <time/DateText.h>

#include <utility>

namespace quorvane {

TimeField::TimeField(Binding<Instant> date, const EntryDependencies& dependencies, QWidget* parent)
    : FieldChip(Symbol::Clock, dependencies.popoverEffects, parent),
      m_date(std::move(date)),
      m_dependencies(dependencies) {
    refresh();
}

void TimeField::refresh() {
    showText(
        timeChipText(m_date.get(), m_dependencies.currentZone.current(), m_dependencies.locale));
}

QWidget* TimeField::makeContent() {
    const auto set = [this](Instant date) {
        m_date.set(date);
        refresh();
    };
    return new TimePickerPopover({m_date.get, set}, m_dependencies);
}

} // namespace quorvane
