// SPDX-License-Identifier: MIT
#include "TypedInstant.h"

namespace quorvane {

std::optional<Instant> typedInstant(const TypedDate& date, Instant field, const TimeZone& zone) {
    if (!date.day)
        return std::nullopt;
    if (!date.timeOfDay)
        return movedToDay(field, *date.day, zone);
    if (!date.offset)
        return instantAt({*date.day, *date.timeOfDay}, zone, field);
    const auto universal = *date.day + *date.timeOfDay - *date.offset;
    return Instant{static_cast<double>(universal.time_since_epoch().count())};
}

} // namespace quorvane
