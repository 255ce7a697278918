// SPDX-License-Identifier: MIT
#pragma once

// Brings <compare> along, which must not be named here: Qt 6.4's moc fails on <concepts> in it.
#include <loop/Seconds.h>

namespace quorvane {

/// A point in time: UTC seconds since 1970-01-01T00:00:00Z, fractional or negative, leap seconds
/// not counted.
struct Instant {
    double secondsSince1970 = 0;

    friend constexpr auto operator<=>(const Instant&, const Instant&) = default;

    friend constexpr Instant operator+(Instant instant, Seconds span) {
        return {instant.secondsSince1970 + span.count()};
    }
};

} // namespace quorvane
