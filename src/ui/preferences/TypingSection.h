// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesSection.h"

#include <platform/AccessibilityRight.h>

#include <functional>

namespace quorvane {

class PushButton;
class WrappedText;

/// The right to type into other applications, where the desktop asks the user about it.
class TypingSection final : public PreferencesSection {
    Q_OBJECT

public:
    /// `right` must outlive the section; `allow` is the user's wish to be asked.
    TypingSection(
        const AccessibilityRight& right, const std::function<void()>& allow, QWidget* parent);

    /// Shows where the right stands.
    void refresh();

    /// Where the keyboard's focus belongs; null while there is nothing to press.
    [[nodiscard]] QWidget* offer() const;

private:
    void say(const QString& state);

    const AccessibilityRight& m_right;
    WrappedText* m_state;
    PushButton* m_allow;
    WrappedText* m_caption;
};

} // namespace quorvane
