// SPDX-License-Identifier: MIT
#include "ChipSteps.h"
#include "TimePickerPopover.h"

#include <entry/TimeField.h>
#include <time/DateText.h>

#include <utility>

namespace quorvane {

TimeField::TimeField(
    Binding<Instant> date, MinDate minDate, const EntryDependencies& dependencies, QWidget* parent)
    : FieldChip(Symbol::Clock, dependencies.popoverEffects, parent),
      m_date(std::move(date)),
      m_minDate(std::move(minDate)),
      m_dependencies(dependencies) {
    refresh();
}

void TimeField::refresh() {
    showText(
        timeChipText(m_date.get(), m_dependencies.currentZone.current(), m_dependencies.locale));
}

QWidget* TimeField::makeContent() {
    auto* content = new TimePickerPopover(
        {m_date.get,
         [this](Instant date) {
             set(date);
         }},
        m_dependencies);
    connect(content, &TimePickerPopover::finished, this, [this] { closePopover(); });
    return content;
}

void TimeField::step(int amount) {
    const auto minimum = m_minDate ? m_minDate() : std::nullopt;
    set(movedByMinutes(m_date.get(), amount, minimum, m_dependencies.currentZone.current()));
}

void TimeField::set(Instant date) {
    m_date.set(date);
    refresh();
}

} // namespace quorvane
