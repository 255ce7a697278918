// SPDX-License-Identifier: MIT
#include "ChipSteps.h"

#include <entry/DateField.h>
#include <time/DateText.h>

#include <utility>

namespace quorvane {

DateField::DateField(
    Binding<Instant> date, MinDate minDate, const EntryDependencies& dependencies, QWidget* parent)
    : FieldChip(Symbol::Calendar, dependencies.popoverEffects, parent),
      m_date(std::move(date)),
      m_minDate(std::move(minDate)),
      m_dependencies(dependencies) {
    refresh();
}

void DateField::refresh() {
    showText(
        dateChipText(m_date.get(), m_dependencies.currentZone.current(), m_dependencies.locale));
    if (m_calendar)
        m_calendar->refresh();
}

QWidget* DateField::makeContent() {
    m_calendar = new CalendarPicker(
        {m_date.get,
         [this](Instant date) {
             set(date);
         }},
        m_minDate,
        m_dependencies);
    connect(m_calendar, &CalendarPicker::finished, this, [this] { closePopover(); });
    return m_calendar;
}

void DateField::step(int amount) {
    const auto zone = m_dependencies.currentZone.current();
    const auto minimum = m_minDate ? m_minDate() : std::nullopt;
    const auto earliest = minimum ? std::optional(civilDay(*minimum, zone)) : std::nullopt;
    const auto day = movedByDays(civilDay(m_date.get(), zone), amount, earliest);
    set(movedToDay(m_date.get(), day, zone));
}

void DateField::set(Instant date) {
    m_date.set(date);
    refresh();
}

} // namespace quorvane
