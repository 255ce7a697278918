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
        changeElsewhere(fails ? m_on : on);
    }

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

    /// The user decides in the desktop's own settings.
    void changeElsewhere(bool on) {
        m_on = on;
        if (m_changed)
            m_changed();
    }

    bool available = true;
    bool fails = false; ///< the disk takes no entry

private:
    CallLog& m_log;
    bool m_on = false;
    std::function<void()> m_changed;
};

} // namespace quorvane
