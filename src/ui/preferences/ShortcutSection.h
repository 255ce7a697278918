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

    /// What there is to say about it, and about the shortcut itself, is a line below the others.
    void setStatus(const ShortcutRecorder::Status& status);

private:
    void addNotice();
    void showNotice();

    ShortcutRecorder* m_recorder;
    WrappedText* m_notice = nullptr;
    QWidget* m_noticeRow = nullptr; ///< the text with its distance from what is above
};

} // namespace quorvane
