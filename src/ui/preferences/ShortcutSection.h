// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesSection.h"

#include <controls/PopoverEffects.h>
#include <hotkey/BindingLine.h>
#include <platform/DesktopShortcut.h>
#include <recorder/ShortcutRecorder.h>

namespace quorvane {

class ListedShortcut;
class ShortcutLine;
class WrappedText;

/// The shortcut that calls the program from anywhere. Where the desktop gives it to no program, the
/// user is offered what takes its place: the desktop's own list, or a line for its configuration.
class ShortcutSection final : public PreferencesSection {
    Q_OBJECT

public:
    /// What is referred to must outlive the section.
    struct Dependencies {
        const KeyboardLayout& layout;
        MainQueue& queue;
        DesktopShortcut& list;
        BindingSyntax syntax = BindingSyntax::Command; ///< shown first
        PopoverEffects popoverEffects;
        std::function<bool(const QString&)> copy; ///< puts a text on the clipboard, if it can
    };

    ShortcutSection(Binding<HotKeyCombo> combo, Dependencies dependencies, QWidget* parent);

    [[nodiscard]] ShortcutRecorder& recorder() const { return *m_recorder; }

    /// What there is to say about it, and about the shortcut itself, is a line below the others.
    void setStatus(const ShortcutRecorder::Status& status);

    /// Whether the user has to do something for the shortcut to work.
    [[nodiscard]] bool needsHelp() const;

    /// Where the keyboard's focus belongs for that, or else to change the shortcut.
    [[nodiscard]] QWidget* offer() const;

private:
    [[nodiscard]] QWidget* help() const;
    void addNotice();
    void showNotice();

    DesktopShortcut& m_list;
    ShortcutRecorder* m_recorder;
    WrappedText* m_notice = nullptr;
    QWidget* m_noticeRow = nullptr; ///< the text with its distance from what is above
    ListedShortcut* m_listed;
    ShortcutLine* m_line;
};

} // namespace quorvane
