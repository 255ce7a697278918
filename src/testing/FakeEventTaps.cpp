// SPDX-License-Identifier: MIT
#include <testing/FakeEventTaps.h>

#include <utility>

namespace quorvane {

namespace {

class FakeEventTap final : public EventTap {
public:
    FakeEventTap(
        CallLog& log,
        std::shared_ptr<FakeEventTaps::TapState> state,
        std::shared_ptr<const FakeEventTaps::Desktop> desktop)
        : m_log(log),
          m_state(std::move(state)),
          m_desktop(std::move(desktop)) {}

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

    [[nodiscard]] TapDelivery delivery() const override { return m_delivery; }

    [[nodiscard]] QString holder() const override {
        return m_delivery == TapDelivery::HeldElsewhere ? m_desktop->holder : QString();
    }

    [[nodiscard]] bool tellsRelease() const override { return m_desktop->tellsRelease; }

    [[nodiscard]] bool isKeyDown() override {
        return m_desktop->isKeyDown && m_desktop->tellsRelease;
    }

private:
    void updateGrab() {
        const auto delivery = updatedDelivery();
        if (std::exchange(m_delivery, delivery) != delivery)
            m_state->handlers.deliveryChanged();
    }

    [[nodiscard]] TapDelivery updatedDelivery() {
        const auto wanted = m_state->enabled ? m_state->watched : std::nullopt;
        // What we hold nobody can take from us.
        if (wanted && wanted == m_state->grabbed)
            return TapDelivery::Delivering;
        m_state->grabbed.reset();
        if (!wanted)
            return TapDelivery::Off;
        if (m_desktop->lacksKey)
            return TapDelivery::NoSuchKey;
        if (m_desktop->heldElsewhere)
            return TapDelivery::HeldElsewhere;
        m_state->grabbed = wanted;
        return TapDelivery::Delivering;
    }

    CallLog& m_log;
    std::shared_ptr<FakeEventTaps::TapState> m_state;
    std::shared_ptr<const FakeEventTaps::Desktop> m_desktop;
    TapDelivery m_delivery = TapDelivery::Off;
};

} // namespace

TapResult FakeEventTaps::createTap(TapHandlers handlers) {
    m_log.add("createTap");
    if (m_refusal)
        return *m_refusal;
    m_tap = std::make_shared<TapState>();
    m_tap->handlers = std::move(handlers);
    return std::make_unique<FakeEventTap>(m_log, m_tap, m_desktop);
}

TapVerdict FakeEventTaps::press(const KeyPress& press) {
    if (!m_tap || !m_tap->enabled || (m_tap->watched && !m_tap->grabbed))
        return TapVerdict::Pass;
    return m_tap->handlers.pressed(press);
}

void FakeEventTaps::release() {
    if (m_tap && m_tap->alive && m_desktop->tellsRelease)
        m_tap->handlers.released();
}

void FakeEventTaps::changeChord(const KeyChord& chord) {
    if (!m_tap || !m_tap->alive)
        return;
    m_tap->watched = chord;
    m_tap->grabbed = chord;
    m_tap->handlers.chordChanged(chord);
}

} // namespace quorvane
