// SPDX-License-Identifier: MIT
#pragma once

#include <platform/TimeChanges.h>

#include <utility>

namespace quorvane {

/// A system whose clock and zone are set when the test says so.
class FakeTimeChanges final : public TimeChanges {
public:
    void onChanged(std::function<void()> handler) override { m_handler = std::move(handler); }

    void change() {
        if (m_handler)
            m_handler();
    }

private:
    std::function<void()> m_handler;
};

} // namespace quorvane
