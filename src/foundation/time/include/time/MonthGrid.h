// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>
#include <time/UserLocale.h>

#include <QString>

#include <array>
#include <vector>

namespace quorvane {

struct MonthGridDay {
    CivilDay day;
    QString number;   ///< of the day in its month, in the locale's digits
    QString fullText; ///< weekday, day, month and year in words
};

/// One month as a calendar on the wall shows it, in the locale's own calendar, words and digits.
struct MonthGrid {
    QString title;                       ///< month and year
    std::array<QString, 7> weekdayNames; ///< one letter each where the language has such
    int firstColumn = 0;                 ///< of the month's first day, 0 to 6
    std::vector<MonthGridDay> days;      ///< all days of the month, in order

    [[nodiscard]] int columnOf(std::size_t dayIndex) const;
    [[nodiscard]] int rowOf(std::size_t dayIndex) const;

    /// As many as the month touches.
    [[nodiscard]] int weekCount() const;

    [[nodiscard]] bool contains(CivilDay day) const;
};

/// The month that holds the day.
[[nodiscard]] MonthGrid monthGrid(CivilDay day, const UserLocale& locale);

} // namespace quorvane
