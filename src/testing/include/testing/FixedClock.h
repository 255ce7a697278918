// SPDX-License-Identifier: MIT
#pragma once

#include <time/Clock.h>

namespace quorvane {

/// Stands still until the test sets it.
class FixedClock final : public Clock {
public:
    explicit FixedClock(Instant instant) : m_now(instant) {}

    [[nodiscard]] Instant now() const override { return m_now; }

    void set(Instant instant) { m_now = instant; }

private:
    Instant m_now;
};

} // namespace quorvane
