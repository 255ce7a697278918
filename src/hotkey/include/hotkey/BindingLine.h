// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyCombo.h>
#include <settings/Environment.h>

#include <array>

namespace quorvane {

/// In whose words a shortcut is bound where programs cannot have one: the configuration of a window
/// manager, or for all others the command that a shortcut in the desktop's settings is to run.
enum class BindingSyntax { Sway, Hyprland, River, I3, Niri, Command };

inline constexpr std::array bindingSyntaxes{
    BindingSyntax::Sway,
    BindingSyntax::Hyprland,
    BindingSyntax::River,
    BindingSyntax::I3,
    BindingSyntax::Niri,
    BindingSyntax::Command};

/// What shows and hides the interface when it runs, in a shell's words.
[[nodiscard]] QString toggleCommand();

/// The line by which pressing the shortcut runs toggleCommand(). A key that types no character of
/// ASCII in the layout is named by its code; where a configuration knows no codes, by what an ANSI
/// keyboard has there. Empty where the key has no name in that syntax, or the shortcut a modifier
/// that no keyboard has.
[[nodiscard]] QString
bindingLine(BindingSyntax syntax, const HotKeyCombo& combo, const KeyboardLayout& layout);

/// The window manager that has announced itself to the session's programs; Command where none has.
[[nodiscard]] BindingSyntax announcedSyntax(const Environment& environment);

} // namespace quorvane
