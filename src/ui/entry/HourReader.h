// SPDX-License-Identifier: MIT
#pragma once

#include <time/HourCycle.h>
#include <time/TypedTime.h>

#include <optional>

namespace quorvane {

/// What a text in the field of the hour stands for.
struct HourEntry {
    TypingState state = TypingState::Refused;
    std::optional<TypedTime> time = {}; ///< complete, and more than a plain number
};

/// Reads what is typed for an hour: a number; a whole time, which is one once
/// it has two digits of minute; or an hour with a word such as PM.
class HourReader {
public:
    explicit HourReader(const UserLocale& locale);

    [[nodiscard]] HourEntry read(const QString& text) const;

    [[nodiscard]] HourCycle cycle() const { return m_cycle; }

private:
    [[nodiscard]] HourEntry readNumber(const QString& text, qint64 number) const;

    HourCycle m_cycle;
    TypedTimeReader m_times;
};

/// What a text in the field of the minute stands for: a number from 0 to 59.
[[nodiscard]] TypingState readMinute(const QString& text);

} // namespace quorvane
