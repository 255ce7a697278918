// SPDX-License-Identifier: MIT
#include <time/TypedTime.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// Longer texts are no times, and would take their time to be refused.
constexpr qsizetype longestText = 40;

QString timeExpression(const QString& period) {
    const auto hour = u"(?<hour>2[0-3]|[01]?[0-9])"_s;
    const auto separator = u" ?(?:[:.h]|時) ?"_s;
    const auto apart = hour + u"(?:"_s + separator + u"(?<minute>[0-5][0-9])分?)?"_s;
    const auto together = u"(?<fullHour>2[0-3]|[01][0-9])(?<fullMinute>[0-5][0-9])"_s;
    return u"^(?:(?<before>"_s + period + u") ?)?(?:"_s + together + u"(?![0-9])|"_s + apart +
           u"(?![0-9]))(?: ?(?<after>"_s + period + u"))?$"_s;
}

int numberOf(const QRegularExpressionMatch& match, const QString& name, const QString& otherName) {
    const auto text = match.captured(name);
    return (text.isEmpty() ? match.captured(otherName) : text).toInt();
}

bool has(const QRegularExpressionMatch& match, const QString& name) {
    return !match.captured(name).isEmpty();
}

} // namespace

TypedTimeReader::TypedTimeReader(const UserLocale& locale)
    : m_periods(locale),
      m_expression(timeExpression(m_periods.expression())) {
}

TypedTime TypedTimeReader::read(QStringView typed) const {
    const auto text = typed.size() <= longestText ? comparableText(typed) : u"x"_s;
    const auto match = m_expression.match(text, 0, QRegularExpression::PartialPreferCompleteMatch);
    if (!match.hasMatch())
        return {match.hasPartialMatch() ? TypingState::Unfinished : TypingState::Refused};

    TypedTime time{TypingState::Complete, numberOf(match, u"hour"_s, u"fullHour"_s)};
    if (has(match, u"minute"_s) || has(match, u"fullMinute"_s))
        time.minute = numberOf(match, u"minute"_s, u"fullMinute"_s);
    const bool isBefore = has(match, u"before"_s);
    const bool isAfter = has(match, u"after"_s);
    time.hasPeriod = isBefore || isAfter;
    if (!time.hasPeriod && !time.minute)
        return {TypingState::Unfinished};
    if (!time.hasPeriod)
        return time;
    const auto hour =
        m_periods.hourIn(match.captured(isBefore ? u"before"_s : u"after"_s), time.hour);
    if (!hour || (isBefore && isAfter))
        return {};
    time.hour = *hour;
    return time;
}

} // namespace quorvane
