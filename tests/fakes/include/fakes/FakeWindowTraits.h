// SPDX-License-Identifier: MIT
#pragma once

#include <fakes/CallLog.h>
#include <platform/WindowTraits.h>

namespace quorvane {

class FakeWindowTraits final : public WindowTraits {
public:
    explicit FakeWindowTraits(CallLog& log) : m_log(log) {}

    void setActivationPolicy(ActivationPolicy policy) override {
        m_log.add(policy == ActivationPolicy::Regular ? "policy regular" : "policy accessory");
    }

    void preparePanel(QWindow&) override { m_log.add("preparePanel"); }

    void presentPanel(QWindow&) override { m_log.add("presentPanel"); }

    void orderFront(QWindow&) override { m_log.add("orderFront"); }

    [[nodiscard]] bool isComposited() const override { return composited; }

    bool composited = false;

private:
    CallLog& m_log;
};

} // namespace quorvane
