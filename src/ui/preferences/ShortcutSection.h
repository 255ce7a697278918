// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesSection.h"

#include <recorder/ShortcutRecorder.h>

namespace quorvane {

class WrappedText;

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

    /// Where presses of the shortcut do not reach the program, a line below the others says why.
    void setActivity(ShortcutRecorder::Activity activity);

private:
    void addWarning();

    ShortcutRecorder* m_recorder;
    WrappedText* m_warning = nullptr;
    QWidget* m_warningRow = nullptr; ///< the text with its distance from what is above
};

} // namespace quorvane
