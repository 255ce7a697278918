// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>
#include <time/TypedDate.h>
#include <time/UserLocale.h>

#include <QRegularExpression>

#include <map>

namespace quorvane {

/// Reads a locale's weekdays and its words for days, weeks, months and years near today, such as
/// "tomorrow" and "next week".
class TypedWords {
public:
    explicit TypedWords(UserLocale locale);

    /// Words count from today; a weekday is the next one, today included.
    [[nodiscard]] TypedDate read(const QString& comparable, CivilDay today) const;

private:
    enum class Unit { Day, Week, Month, Year, Weekday };

    struct Meaning {
        Unit unit = Unit::Day;
        int number = 0; ///< of units from today; of a weekday, counted from Sunday as 0
    };

    void addRelativeWords();
    void addWeekdays();
    [[nodiscard]] CivilDay dayOf(const Meaning& meaning, CivilDay today) const;

    UserLocale m_locale;
    std::map<QString, Meaning> m_meanings; ///< by word, without dots and spaces
    QRegularExpression m_expression;
};

} // namespace quorvane
