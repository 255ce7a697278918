// SPDX-License-Identifier: MIT
#pragma once

#include "FaultyEventTap.h"

namespace quorvane {

/// A desktop that refuses a tap; those that it gives may fail later.
class FaultyEventTapService final : public EventTapService {
public:
    FaultyEventTapService(std::unique_ptr<EventTapService> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] TapResult createTap(TapHandlers handlers) override {
        if (m_plan.strikes("EventTapService::createTap"))
            return TapFailure{QStringLiteral("refused")};
        auto result = m_real->createTap(std::move(handlers));
        if (auto* tap = std::get_if<std::unique_ptr<EventTap>>(&result))
            return std::make_unique<FaultyEventTap>(std::move(*tap), m_plan);
        return result;
    }

private:
    std::unique_ptr<EventTapService> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
