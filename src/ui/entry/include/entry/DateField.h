// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <entry/CalendarPicker.h>
#include <entry/EntryDependencies.h>
#include <entry/FieldChip.h>

#include <QPointer>

namespace quorvane {

/// The chip of a date's day; it opens a calendar, and steps by a day.
class DateField final : public FieldChip {
    Q_OBJECT

public:
    DateField(
        Binding<Instant> date,
        MinDate minDate,
        const EntryDependencies& dependencies,
        QWidget* parent = nullptr);

    /// Shows date, minimum, zone and today as they are now, in an open calendar too.
    void refresh();

protected:
    [[nodiscard]] QWidget* makeContent() override;
    void step(int amount) override;

private:
    void set(Instant date);

    Binding<Instant> m_date;
    MinDate m_minDate;
    EntryDependencies m_dependencies;
    QPointer<CalendarPicker> m_calendar;
};

} // namespace quorvane
