// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>

#include <QString>

#include <cstdint>

namespace quorvane {

/// A length of time in the units that people count in; none is negative.
struct SpanParts {
    std::int64_t days = 0;
    std::int64_t hours = 0;
    std::int64_t minutes = 0;

    friend bool operator==(const SpanParts&, const SpanParts&) = default;
};

/// In the locale's own words, such as "3 days, 4 hours". Units that are zero are left out; nothing
/// at all is "0 minutes".
[[nodiscard]] QString spanWords(const SpanParts& span, const UserLocale& locale);

/// In the locale's digits and groups.
[[nodiscard]] QString wholeNumberText(std::int64_t number, const UserLocale& locale);

} // namespace quorvane
