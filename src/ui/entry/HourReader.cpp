// SPDX-License-Identifier: MIT
#include "HourReader.h"

#include "NumberText.h"
#include "TimeEntry.h"

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype wholeTimeDigits = 4;

bool isSign(const QString& text) {
    return text == u"+"_s || text == u"-"_s;
}

bool hasSign(const QString& text) {
    return text.startsWith(u'+') || text.startsWith(u'-');
}

} // namespace

HourReader::HourReader(const UserLocale& locale) : m_cycle(hourCycle(locale)), m_times(locale) {
}

HourEntry HourReader::read(const QString& typed) const {
    const auto text = withAsciiDigits(typed);
    if (text.isEmpty() || isSign(text))
        return {TypingState::Unfinished, {}};
    if (const auto number = parsedNumber(text))
        return readNumber(text, *number);
    const auto time = m_times.read(text);
    if (time.state != TypingState::Complete)
        return {time.state, {}};
    return {TypingState::Complete, time};
}

HourEntry HourReader::readNumber(const QString& text, qint64 number) const {
    const bool mayBeTime = !hasSign(text) && text.size() <= wholeTimeDigits;
    const auto time = mayBeTime ? m_times.read(text) : TypedTime();
    if (time.state == TypingState::Complete)
        return {TypingState::Complete, time};
    if (isHour(number, m_cycle) && text.size() != wholeTimeDigits)
        return {TypingState::Complete, {}};
    return {time.state, {}};
}

TypingState readMinute(const QString& typed) {
    const auto text = withAsciiDigits(typed);
    if (text.isEmpty() || isSign(text))
        return TypingState::Unfinished;
    const auto number = parsedNumber(text);
    return number && isMinute(*number) ? TypingState::Complete : TypingState::Refused;
}

} // namespace quorvane
