// SPDX-License-Identifier: MIT
#include "FuzzInput.h"
#include "Samples.h"

#include <time/TypedDateReader.h>

#include <map>
#include <string>

using namespace quorvane;
using namespace std::chrono_literals;

namespace {

const TypedDateReader& readerFor(const UserLocale& locale) {
    static std::map<std::string, TypedDateReader> readers;
    return readers.try_emplace(locale.icuLocale().getName(), locale).first->second;
}

/// From the year 1 to 9999.
CivilDay dayIn(FuzzInput& input) {
    constexpr int first = -719162;
    constexpr std::uint32_t days = 3652059;
    return CivilDay(
        std::chrono::days(first + static_cast<int>(input.number<std::uint32_t>() % days)));
}

void check(const TypedDate& date) {
    if (date.day) {
        const std::chrono::year_month_day day(*date.day);
        demand(int{day.year()} >= 1 && int{day.year()} <= 9999, "a year from 1 to 9999");
    }
    demand(date.state != TypingState::Complete || date.day, "a whole date has a day");
    if (date.timeOfDay)
        demand(*date.timeOfDay >= 0s && *date.timeOfDay < 24h, "a time of the day");
    if (date.offset)
        demand(*date.offset > -24h && *date.offset < 24h, "less than a day from Greenwich");
}

} // namespace

/// Any text in the field for a date.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const auto& reader = readerFor(samples::locale(input));
    const auto fieldDay = dayIn(input);
    const auto today = dayIn(input);
    check(reader.read(input.restAsText(), fieldDay, today));
    return 0;
}
