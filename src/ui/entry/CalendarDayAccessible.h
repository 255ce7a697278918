// SPDX-License-Identifier: MIT
#pragma once

#include <entry/CalendarDay.h>

#include <QAccessibleWidget>

namespace quorvane {

/// A day as assistive technology sees it: a button, one of which is selected. A refused one is
/// disabled, although its widget is not.
class CalendarDayAccessible final : public QAccessibleWidget {
public:
    explicit CalendarDayAccessible(CalendarDay& day);

    /// Makes Qt use this class; any number of calls.
    static void install();

    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    CalendarDay& m_day;
};

} // namespace quorvane
