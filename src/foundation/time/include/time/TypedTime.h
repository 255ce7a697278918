// SPDX-License-Identifier: MIT
#pragma once

#include <time/DayPeriods.h>
#include <time/TypedText.h>

#include <QRegularExpression>

#include <optional>

namespace quorvane {

/// A time of day that is being typed: hour and two digits of minute with a separator or without, a
/// word for the half of the day before or after them, or an hour with such a word.
struct TypedTime {
    TypingState state = TypingState::Refused;
    int hour = 0;                   ///< 0 to 23
    std::optional<int> minute = {}; ///< none for an hour with a word
    bool hasPeriod = false;         ///< a word says which half of the day is meant
};

/// Reads such times with the words of one locale.
class TypedTimeReader {
public:
    explicit TypedTimeReader(const UserLocale& locale);

    /// An hour alone is unfinished.
    [[nodiscard]] TypedTime read(QStringView text) const;

private:
    DayPeriods m_periods;
    QRegularExpression m_expression;
};

} // namespace quorvane
