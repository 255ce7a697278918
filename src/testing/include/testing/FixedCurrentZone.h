// SPDX-License-Identifier: MIT
#pragma once

#include <time/CurrentZone.h>

#include <utility>

namespace quorvane {

/// A system that is set to whatever zone the test says.
class FixedCurrentZone final : public CurrentZone {
public:
    explicit FixedCurrentZone(TimeZone zone) : m_zone(std::move(zone)) {}

    [[nodiscard]] TimeZone current() const override { return m_zone; }

    void set(TimeZone zone) { m_zone = std::move(zone); }

private:
    TimeZone m_zone;
};

} // namespace quorvane
