// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyPoster.h>

#include <string>
#include <testing/CallLog.h>

namespace quorvane {

class FakeKeyPoster final : public KeyPoster {
public:
    explicit FakeKeyPoster(CallLog& log) : m_log(log) {}

    PostOutcome post(const KeyChord& chord) override {
        m_log.add(
            "post " + std::to_string(chord.keyCode) + " with " + std::to_string(chord.flags.bits));
        return m_outcome;
    }

    void setOutcome(PostOutcome outcome) { m_outcome = outcome; }

private:
    CallLog& m_log;
    PostOutcome m_outcome = PostOutcome::Posted;
};

} // namespace quorvane
