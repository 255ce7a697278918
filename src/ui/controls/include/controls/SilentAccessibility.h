// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

namespace quorvane {

/// While it lives, assistive technology is told of nothing: for changes that nobody is meant to
/// perceive, or that are told in another way.
class SilentAccessibility {
public:
    SilentAccessibility()
        : m_handler(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}

    SilentAccessibility(const SilentAccessibility&) = delete;
    SilentAccessibility& operator=(const SilentAccessibility&) = delete;

    ~SilentAccessibility() { QAccessible::installUpdateHandler(m_handler); }

private:
    QAccessible::UpdateHandler m_handler;
};

} // namespace quorvane
