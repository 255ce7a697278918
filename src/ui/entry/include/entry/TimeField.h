// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <entry/CalendarPicker.h>
#include <entry/EntryDependencies.h>
#include <entry/FieldChip.h>

namespace quorvane {

/// The chip of a date's time of day; it opens the entry of hour and minute, and steps by a minute,
/// across midnight too. The minimum holds for its steps alone.
class TimeField final : public FieldChip {
    Q_OBJECT

public:
    TimeField(
        Binding<Instant> date,
        MinDate minDate,
        const EntryDependencies& dependencies,
        QWidget* parent = nullptr);

    /// Shows date and zone as they are now. What is being typed in an open popover stays.
    void refresh();

protected:
    [[nodiscard]] QWidget* makeContent() override;
    void step(int amount) override;

private:
    void set(Instant date);

    Binding<Instant> m_date;
    MinDate m_minDate;
    EntryDependencies m_dependencies;
};

} // namespace quorvane
