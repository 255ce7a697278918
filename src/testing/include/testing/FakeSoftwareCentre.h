// SPDX-License-Identifier: MIT
#pragma once

#include <platform/SoftwareCentre.h>
#include <testing/CallLog.h>

namespace quorvane {

class FakeSoftwareCentre final : public SoftwareCentre {
public:
    explicit FakeSoftwareCentre(CallLog& log) : m_log(log) {}

    [[nodiscard]] bool showPage(const QString& applicationId) override {
        m_log.add("showPage " + applicationId.toStdString());
        return isInstalled;
    }

    bool isInstalled = true;

private:
    CallLog& m_log;
};

} // namespace quorvane
