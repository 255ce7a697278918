// SPDX-License-Identifier: MIT
#include "ChipSteps.h"

namespace quorvane {

CivilDay movedByDays(CivilDay day, int amount, const std::optional<CivilDay>& earliest) {
    const auto stepped = day + std::chrono::days(amount);
    if (!earliest || stepped >= *earliest)
        return stepped;
    return amount > 0 || day > *earliest ? *earliest : day;
}

Instant movedByMinutes(
    Instant date, int amount, const std::optional<Instant>& earliest, const TimeZone& zone) {
    const auto stepped = startOfMinute(date, zone) + std::chrono::minutes(amount);
    const auto day = civilDay(stepped, zone);
    const bool leadsBack = amount < 0 && day != civilDay(date, zone);
    return earliest && leadsBack && day < civilDay(*earliest, zone) ? date : stepped;
}

} // namespace quorvane
