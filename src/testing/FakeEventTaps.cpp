// SPDX-License-Identifier: MIT
#include <testing/FakeEventTaps.h>

namespace quorvane {

namespace {

class FakeEventTap final : public EventTap {
public:
    FakeEventTap(
        CallLog& log,
        std::shared_ptr<FakeEventTaps::TapState> state,
        std::shared_ptr<bool> heldElsewhere)
        : m_log(log),
          m_state(std::move(state)),
          m_heldElsewhere(std::move(heldElsewhere)) {}

    ~FakeEventTap() override {
        m_state->enabled = false;
        m_state->grabbed.reset();
        m_state->alive = false;
        m_log.add("tap freed");
    }

    FakeEventTap(const FakeEventTap&) = delete;
    FakeEventTap& operator=(const FakeEventTap&) = delete;

    void watch(std::optional<KeyChord> chord) override {
        m_state->watched = chord;
        m_log.add("watch");
        updateGrab();
    }

    void enable() override {
        m_state->enabled = true;
        m_log.add("enable");
        updateGrab();
    }

    void disable() override {
        m_state->enabled = false;
        m_log.add("disable");
        updateGrab();
    }

    [[nodiscard]] bool isDelivering() const override { return m_state->grabbed.has_value(); }

private:
    void updateGrab() {
        const auto wanted = m_state->enabled ? m_state->watched : std::nullopt;
        // What we hold nobody can take from us.
        if (wanted != m_state->grabbed)
            m_state->grabbed = *m_heldElsewhere ? std::nullopt : wanted;
    }

    CallLog& m_log;
    std::shared_ptr<FakeEventTaps::TapState> m_state;
    std::shared_ptr<bool> m_heldElsewhere;
};

} // namespace

TapResult FakeEventTaps::createTap(KeyPressHandler handler) {
    m_log.add("createTap");
    if (m_refusal)
        return *m_refusal;
    m_tap = std::make_shared<TapState>();
    m_tap->handler = std::move(handler);
    return std::make_unique<FakeEventTap>(m_log, m_tap, m_heldElsewhere);
}

TapVerdict FakeEventTaps::press(const KeyPress& press) {
    if (!m_tap || !m_tap->enabled || (m_tap->watched && !m_tap->grabbed))
        return TapVerdict::Pass;
    return m_tap->handler(press);
}

} // namespace quorvane
