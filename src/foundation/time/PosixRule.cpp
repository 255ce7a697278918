// SPDX-License-Identifier: MIT
#include "PosixRule.h"

#include <chrono>
#include <string_view>

namespace quorvane {

namespace {

using namespace std::chrono;
using YearMoment = PosixRule::YearMoment;

// The Gregorian calendar repeats after 400 years, weekdays included.
constexpr long long cycle = 146097LL * 86400;

/// Reads a text from its start. What is missing leaves it broken.
class RuleReader {
public:
    explicit RuleReader(QByteArrayView text) : m_rest(text.data(), std::size_t(text.size())) {}

    [[nodiscard]] bool isAtEnd() const { return m_rest.empty(); }

    [[nodiscard]] bool isBroken() const { return m_isBroken; }

    bool skip(char expected) {
        if (m_rest.empty() || m_rest.front() != expected)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    void require(bool holds) { m_isBroken = m_isBroken || !holds; }

    /// Three letters or more, or anything between angle brackets.
    void skipName() {
        const bool isQuoted = skip('<');
        const auto end = isQuoted ? m_rest.find('>') : lettersAtStart();
        require(end != std::string_view::npos && end >= 3);
        m_rest.remove_prefix(std::min(end, m_rest.size()));
        require(!isQuoted || skip('>'));
    }

    int number() {
        int value = 0;
        std::size_t digits = 0;
        for (; !m_rest.empty() && m_rest.front() >= '0' && m_rest.front() <= '9' && digits < 4;
             ++digits) {
            value = value * 10 + (m_rest.front() - '0');
            m_rest.remove_prefix(1);
        }
        require(digits > 0);
        return value;
    }

    /// "[+-]hh[:mm[:ss]]" in seconds.
    int time() {
        const int sign = skip('-') ? -1 : 1;
        if (sign > 0)
            skip('+');
        int seconds = number() * 3600;
        if (skip(':'))
            seconds += number() * 60;
        if (skip(':'))
            seconds += number();
        return sign * seconds;
    }

    YearMoment moment() {
        YearMoment moment;
        if (skip('M')) {
            moment.kind = YearMoment::Kind::WeekdayOfMonth;
            moment.month = number();
            require(skip('.'));
            moment.week = number();
            require(skip('.'));
        } else if (skip('J')) {
            moment.kind = YearMoment::Kind::DayWithoutLeapDay;
        }
        moment.day = number();
        require(moment.month >= 1 && moment.month <= 12 && moment.week >= 1 && moment.week <= 5);
        require(moment.day <= (moment.kind == YearMoment::Kind::WeekdayOfMonth ? 6 : 365));
        if (skip('/'))
            moment.seconds = time();
        return moment;
    }

private:
    [[nodiscard]] std::size_t lettersAtStart() const {
        const auto isLetter = [](char c) {
            return (c | 0x20) >= 'a' && (c | 0x20) <= 'z';
        };
        std::size_t count = 0;
        while (count < m_rest.size() && isLetter(m_rest[count]))
            ++count;
        return count;
    }

    std::string_view m_rest;
    bool m_isBroken = false;
};

sys_days dayOf(const YearMoment& moment, year year) {
    const auto newYear = sys_days(year / January / 1);
    switch (moment.kind) {
    case YearMoment::Kind::DayWithoutLeapDay:
        return newYear + days(moment.day - 1 + (year.is_leap() && moment.day >= 60 ? 1 : 0));
    case YearMoment::Kind::DayOfYear:
        return newYear + days(moment.day);
    case YearMoment::Kind::WeekdayOfMonth:
        break;
    }
    const auto month = year / std::chrono::month(unsigned(moment.month));
    const weekday day(unsigned(moment.day));
    return moment.week == 5 ? sys_days(month / day[last])
                            : sys_days(month / day[unsigned(moment.week)]);
}

/// Seconds since 1970 at which it is that moment of the year for clocks with this offset.
long long secondsAt(const YearMoment& moment, year year, const LocalOffset& offset) {
    return seconds(dayOf(moment, year).time_since_epoch()).count() + moment.seconds -
           offset.seconds;
}

} // namespace

std::optional<PosixRule> PosixRule::parse(QByteArrayView text) {
    RuleReader reader(text);
    PosixRule rule;
    reader.skipName();
    rule.m_standard = {-reader.time(), false};
    reader.require(rule.m_standard.isPossible());
    if (!reader.isBroken() && !reader.isAtEnd()) {
        reader.skipName();
        const bool hasOwnOffset = !reader.skip(',');
        rule.m_daylight = {hasOwnOffset ? -reader.time() : rule.m_standard.seconds + 3600, true};
        reader.require(rule.m_daylight->isPossible());
        reader.require(!hasOwnOffset || reader.skip(','));
        rule.m_start = reader.moment();
        reader.require(reader.skip(','));
        rule.m_end = reader.moment();
    }
    return reader.isBroken() || !reader.isAtEnd() ? std::nullopt : std::optional(rule);
}

LocalOffset PosixRule::at(long long seconds) const {
    if (!m_daylight)
        return m_standard;
    const long long now = (seconds % cycle + cycle) % cycle;
    const auto date = floor<days>(sys_seconds(std::chrono::seconds(now + m_standard.seconds)));
    const auto year = year_month_day(date).year();
    const auto start = secondsAt(m_start, year, m_standard);
    const auto end = secondsAt(m_end, year, *m_daylight);
    const bool isDaylight = start < end ? start <= now && now < end : now < end || start <= now;
    return isDaylight ? *m_daylight : m_standard;
}

} // namespace quorvane
