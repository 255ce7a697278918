// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Choice.h>
#include <controls/PopoverEffects.h>
#include <hotkey/BindingLine.h>

#include <QWidget>

#include <functional>

namespace quorvane {

class CodeText;
class MacPopUpButton;
class PushButton;
class WrappedText;

/// The line by which a window manager's configuration binds the shortcut, to be copied.
class ShortcutLine final : public QWidget {
    Q_OBJECT

public:
    /// Puts a text on the clipboard and says whether it did.
    using Copy = std::function<bool(const QString&)>;

    /// `layout` must outlive it; `combo` is the shortcut that is recorded.
    ShortcutLine(
        std::function<HotKeyCombo()> combo,
        const KeyboardLayout& layout,
        BindingSyntax syntax,
        const PopoverEffects& effects,
        Copy copy,
        QWidget* parent);

    void refresh();

    /// Where the keyboard's focus belongs first.
    [[nodiscard]] QWidget* offer() const;

private:
    [[nodiscard]] QString line() const;
    [[nodiscard]] QString advice() const;
    void choose(BindingSyntax syntax);
    void copy();

    std::function<HotKeyCombo()> m_combo;
    const KeyboardLayout& m_layout;
    BindingSyntax m_syntax;
    Copy m_copy;
    MacPopUpButton* m_syntaxes;
    WrappedText* m_advice;
    CodeText* m_line;
    PushButton* m_copyButton;
    WrappedText* m_outcome;
    Choice<BindingSyntax> m_choice;
};

} // namespace quorvane
