// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyPoster.h>
#include <testing/CallLog.h>

#include <utility>

namespace quorvane {

/// A keyboard that the test takes away keys from.
class FakeKeyPoster final : public KeyPoster {
public:
    explicit FakeKeyPoster(CallLog& log) : m_log(log) {}

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override {
        return m_outcome == PostOutcome::Posted ? std::optional(m_target) : std::nullopt;
    }

    void paste(const PasteTarget& target, PostHandler done) override {
        m_log.add("paste");
        m_posted = target;
        if (m_takesTime)
            m_pending = std::move(done);
        else
            done(m_outcome);
    }

    /// The keys go out one by one, as through a portal, and are done when the test says so.
    void setTakesTime() { m_takesTime = true; }

    /// The last key of a paste that takes time is sent.
    void finishPaste() {
        if (const auto done = std::exchange(m_pending, {}))
            done(m_outcome);
    }

    /// How the window in front pastes.
    void setPasteTarget(const PasteTarget& target) { m_target = target; }

    /// What becomes of the next keys; a keyboard that cannot post them knows so beforehand.
    void setOutcome(PostOutcome outcome) { m_outcome = outcome; }

    /// What the last paste() was asked for.
    [[nodiscard]] const std::optional<PasteTarget>& posted() const { return m_posted; }

private:
    CallLog& m_log;
    PasteTarget m_target;
    std::optional<PasteTarget> m_posted;
    PostOutcome m_outcome = PostOutcome::Posted;
    bool m_takesTime = false;
    PostHandler m_pending;
};

} // namespace quorvane
