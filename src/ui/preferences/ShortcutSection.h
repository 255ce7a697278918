// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesSection.h"

#include <recorder/ShortcutRecorder.h>

namespace quorvane {

/// The shortcut that calls the program from anywhere.
class ShortcutSection final : public PreferencesSection {
    Q_OBJECT

public:
    /// `layout` and `queue` must outlive the section.
    ShortcutSection(
        Binding<HotKeyCombo> combo,
        const KeyboardLayout& layout,
        MainQueue& queue,
        QWidget* parent);

    [[nodiscard]] ShortcutRecorder& recorder() const { return *m_recorder; }

private:
    ShortcutRecorder* m_recorder;
};

} // namespace quorvane
