// SPDX-License-Identifier: MIT
#pragma once

#include <time/Instant.h>

namespace quorvane {

/// Where "now" comes from.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Instant now() const = 0;
};

/// The system's wall clock.
class SystemClock final : public Clock {
public:
    [[nodiscard]] Instant now() const override;
};

} // namespace quorvane
