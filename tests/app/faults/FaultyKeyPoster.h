// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <loop/MainQueue.h>
#include <platform/KeyPoster.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A keyboard that has no keys to post, or says only after a second that it posted none.
class FaultyKeyPoster final : public KeyPoster {
public:
    FaultyKeyPoster(std::unique_ptr<KeyPoster> real, FaultPlan& plan, MainQueue& queue)
        : m_real(std::move(real)),
          m_plan(plan),
          m_queue(queue) {}

    void prepare() override {
        if (!m_plan.strikes("KeyPoster::prepare"))
            m_real->prepare();
    }

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override {
        return m_plan.strikes("KeyPoster::pasteTarget") ? std::nullopt : m_real->pasteTarget();
    }

    void paste(const PasteTarget& target, PostHandler done) override {
        if (!m_plan.strikes("KeyPoster::paste"))
            return m_real->paste(target, std::move(done));
        m_answer =
            m_queue.after(Seconds(1), [done = std::move(done)] { done(PostOutcome::Unavailable); });
    }

private:
    std::unique_ptr<KeyPoster> m_real;
    FaultPlan& m_plan;
    MainQueue& m_queue;
    Deadline m_answer;
};

} // namespace quorvane
