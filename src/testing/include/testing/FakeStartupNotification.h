// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StartupNotification.h>
#include <testing/CallLog.h>

#include <utility>

namespace quorvane {

/// A desktop that notes what was opened, and when that was over.
class FakeStartupNotification final : public StartupNotification {
public:
    explicit FakeStartupNotification(CallLog& log) : m_log(log) {}

    void begin(const ActivationToken& token) override {
        m_isUnderWay = !token.isEmpty();
        if (m_isUnderWay)
            m_log.add("startup begins " + (token.token + token.startupId).toStdString());
    }

    void end() override {
        if (std::exchange(m_isUnderWay, false))
            m_log.add("startup ends");
    }

private:
    CallLog& m_log;
    bool m_isUnderWay = false;
};

} // namespace quorvane
