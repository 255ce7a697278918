// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyPoster.h>
#include <testing/CallLog.h>

namespace quorvane {

class FakeKeyPoster final : public KeyPoster {
public:
    explicit FakeKeyPoster(CallLog& log) : m_log(log) {}

    [[nodiscard]] PostOutcome paste() override {
        m_log.add("paste");
        return m_outcome;
    }

    void setOutcome(PostOutcome outcome) { m_outcome = outcome; }

private:
    CallLog& m_log;
    PostOutcome m_outcome = PostOutcome::Posted;
};

} // namespace quorvane
