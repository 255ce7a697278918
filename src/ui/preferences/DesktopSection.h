// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesSection.h"

#include <platform/ServiceState.h>

#include <vector>

namespace quorvane {

/// How each service works on this desktop, or that it does not and why.
class DesktopSection final : public PreferencesSection {
    Q_OBJECT

public:
    explicit DesktopSection(QWidget* parent);

    /// Shows these, each with its explanation; one without says nothing.
    void setStates(const std::vector<ServiceState>& states);

    /// Whether there is anything that a user would miss.
    [[nodiscard]] static bool isWorthTelling(const std::vector<ServiceState>& states);

private:
    std::vector<ServiceState> m_states;
    QWidget* m_rows = nullptr;
};

} // namespace quorvane
