// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace quorvane {

/// Which parts an ISO 8601 text has, and how they are separated: a set of bits.
struct Iso8601Options {
    std::uint32_t bits = 0;

    friend constexpr bool operator==(Iso8601Options, Iso8601Options) = default;

    friend constexpr Iso8601Options operator|(Iso8601Options a, Iso8601Options b) {
        return {a.bits | b.bits};
    }

    /// Whether all of `options` are in this set.
    [[nodiscard]] constexpr bool contains(Iso8601Options options) const {
        return (bits & options.bits) == options.bits;
    }
};

namespace iso8601 {

inline constexpr Iso8601Options year{1U << 0};
inline constexpr Iso8601Options month{1U << 1};
inline constexpr Iso8601Options day{1U << 4};
inline constexpr Iso8601Options time{1U << 5};
inline constexpr Iso8601Options timeZone{1U << 6};
inline constexpr Iso8601Options dashSeparatorInDate{1U << 8};
inline constexpr Iso8601Options colonSeparatorInTime{1U << 9};
inline constexpr Iso8601Options colonSeparatorInTimeZone{1U << 10};

inline constexpr Iso8601Options fullDate = year | month | day | dashSeparatorInDate;
inline constexpr Iso8601Options internetDateTime =
    fullDate | time | timeZone | colonSeparatorInTime | colonSeparatorInTimeZone;

} // namespace iso8601

/// The date pattern (UTS #35) of an option set. A zero offset is the letter Z. No options, no text.
[[nodiscard]] QString iso8601Pattern(Iso8601Options options);

} // namespace quorvane
