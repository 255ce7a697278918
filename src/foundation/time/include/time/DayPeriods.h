// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>

#include <QString>

#include <bitset>
#include <map>
#include <optional>

namespace quorvane {

/// The words that tell the halves and parts of the day apart: AM and PM in the locale's words and
/// in English, and what else the locale has, such as "in the afternoon".
class DayPeriods {
public:
    explicit DayPeriods(const UserLocale& locale);

    /// The hour, 0 to 23, that one means by an hour and such a word, both as they are typed. None
    /// if there is no such word, or not at that hour.
    [[nodiscard]] std::optional<int> hourIn(QStringView word, int hour) const;

    /// A regular expression for any of the words, in a text as comparableText() gives it.
    [[nodiscard]] QString expression() const;

private:
    using Hours = std::bitset<24>;

    void addWordsOf(const UserLocale& locale);
    void addAbbreviationsOf(const UserLocale& locale);
    void addHalves(const QString& morning, const QString& evening);

    std::map<QString, Hours> m_hours; ///< by word, without dots and spaces
};

} // namespace quorvane
