// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <platform/KeyboardLayout.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A layout that cannot be asked.
class FaultyKeyboardLayout final : public KeyboardLayout {
public:
    FaultyKeyboardLayout(std::unique_ptr<KeyboardLayout> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] std::optional<std::u16string> characters(std::uint16_t keyCode) const override {
        return m_plan.strikes("KeyboardLayout::characters") ? std::nullopt
                                                            : m_real->characters(keyCode);
    }

    [[nodiscard]] std::optional<std::u16string>
    shiftedCharacters(std::uint16_t keyCode) const override {
        return m_plan.strikes("KeyboardLayout::shiftedCharacters")
                   ? std::nullopt
                   : m_real->shiftedCharacters(keyCode);
    }

    void onChanged(std::function<void()> handler) override {
        if (!m_plan.strikes("KeyboardLayout::onChanged"))
            m_real->onChanged(std::move(handler));
    }

private:
    std::unique_ptr<KeyboardLayout> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
