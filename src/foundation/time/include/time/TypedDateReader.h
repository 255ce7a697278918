// SPDX-License-Identifier: MIT
#pragma once

#include <time/TypedDate.h>
#include <time/UserLocale.h>

#include <memory>

namespace quorvane {

/// Reads dates as one types them: ISO 8601, the locale's own short, medium and long dates, weekdays
/// and relative words, distances such as +3, -2w, +1m and +1y; each of them also with a time of day
/// after it. Where a text has several meanings the locale decides. Days are those from the year 1
/// to 9999.
class TypedDateReader {
public:
    explicit TypedDateReader(const UserLocale& locale);
    ~TypedDateReader();

    TypedDateReader(const TypedDateReader&) = delete;
    TypedDateReader& operator=(const TypedDateReader&) = delete;

    /// Words count from `today`, distances from `fieldDay`.
    [[nodiscard]] TypedDate read(const QString& text, CivilDay fieldDay, CivilDay today) const;

private:
    struct Forms;

    [[nodiscard]] TypedDate
    readDay(const QString& comparable, CivilDay fieldDay, CivilDay today) const;
    [[nodiscard]] TypedDate
    readDayAndTime(const QString& comparable, CivilDay fieldDay, CivilDay today) const;

    std::unique_ptr<const Forms> m_forms;
};

} // namespace quorvane
