// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>
#include <time/TypedText.h>

#include <optional>

namespace quorvane {

/// A date that is being typed, perhaps with a time of day.
struct TypedDate {
    TypingState state = TypingState::Refused;
    std::optional<CivilDay> day = {}; ///< also while the time after it is unfinished
    std::optional<std::chrono::seconds> timeOfDay = {};
    std::optional<std::chrono::seconds> offset =
        {};               ///< of the time, east of Greenwich; none: local
    bool mayGrow = false; ///< more digits would make it another date

    friend bool operator==(const TypedDate&, const TypedDate&) = default;
};

} // namespace quorvane
