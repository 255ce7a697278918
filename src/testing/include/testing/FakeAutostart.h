// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Autostart.h>
#include <testing/CallLog.h>

#include <utility>

namespace quorvane {

/// A login that the test and the program decide about.
class FakeAutostart final : public Autostart {
public:
    explicit FakeAutostart(CallLog& log) : m_log(log) {}

    [[nodiscard]] bool isAvailable() const override { return available; }

    [[nodiscard]] bool isOn() const override { return m_on; }

    void setOn(bool on) override {
        m_log.add(on ? "autostart on" : "autostart off");
        m_wish = on;
        m_request = Request::Asked;
        if (asks)
            changeElsewhere(m_on);
        else
            answer(!fails);
    }

    [[nodiscard]] Request request() const override { return m_request; }

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

    /// The user decides about what the desktop asks.
    void answer(bool agrees) {
        m_request = agrees ? Request::Settled : Request::Refused;
        changeElsewhere(agrees ? m_wish : m_on);
    }

    /// The user decides in the desktop's own settings.
    void changeElsewhere(bool on) {
        m_on = on;
        if (m_changed)
            m_changed();
    }

    bool available = true;
    bool fails = false; ///< the disk takes no entry
    bool asks = false;  ///< the user is asked, and has not answered yet

private:
    CallLog& m_log;
    bool m_on = false;
    bool m_wish = false;
    Request m_request = Request::Settled;
    std::function<void()> m_changed;
};

} // namespace quorvane
