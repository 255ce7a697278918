// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <entry/EntryDependencies.h>
#include <entry/FieldChip.h>

namespace quorvane {

/// The chip of a date's time of day; it opens the entry of hour and minute.
class TimeField final : public FieldChip {
    Q_OBJECT

public:
    TimeField(
        Binding<Instant> date, const EntryDependencies& dependencies, QWidget* parent = nullptr);

    /// Shows date and zone as they are now. What is being typed in an open popover stays.
    void refresh();

protected:
    [[nodiscard]] QWidget* makeContent() override;

private:
    Binding<Instant> m_date;
    EntryDependencies m_dependencies;
};

} // namespace quorvane
