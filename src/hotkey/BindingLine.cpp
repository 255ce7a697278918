// SPDX-License-Identifier: MIT
#include "KeySymNames.h"

#include <hotkey/BindingLine.h>

#include <QStringList>

#include <algorithm>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct ModifierName {
    std::uint32_t modifier;
    const char* name;
};

using ModifierNames = std::array<ModifierName, 4>;

// In the order in which people name them: Ctrl, Alt, Shift, and the one with the logo.
constexpr ModifierNames namesOfI3{
    {{combomodifier::control, "Ctrl"},
     {combomodifier::option, "Mod1"},
     {combomodifier::shift, "Shift"},
     {combomodifier::command, "Mod4"}}};
constexpr ModifierNames namesInCapitals{
    {{combomodifier::control, "CTRL"},
     {combomodifier::option, "ALT"},
     {combomodifier::shift, "SHIFT"},
     {combomodifier::command, "SUPER"}}};
constexpr ModifierNames namesInFull{
    {{combomodifier::control, "Control"},
     {combomodifier::option, "Alt"},
     {combomodifier::shift, "Shift"},
     {combomodifier::command, "Super"}}};

QString modifiersOf(const HotKeyCombo& combo, const ModifierNames& names, QChar separator) {
    QStringList held;
    for (const auto& row : names) {
        if ((combo.modifiers & row.modifier) != 0)
            held.append(QString::fromLatin1(row.name));
    }
    return held.join(separator);
}

/// Scan codes are those of X11, also in compositors of Wayland.
std::optional<QString> scanCode(std::uint32_t keyCode) {
    const auto code = evdevFromKeyCode(keyCode);
    return code ? std::optional(QString::number(*code + evdevOffset)) : std::nullopt;
}

QString keysOfI3(const HotKeyCombo& combo, const QString& key) {
    return modifiersOf(combo, namesOfI3, u'+') + u'+' + key;
}

/// `byName` and `exec` are the words of the configuration that i3 and sway do not share.
QString boundLikeI3(
    const HotKeyCombo& combo,
    const KeyboardLayout& layout,
    const QString& byName,
    const QString& exec) {
    const auto line = u"%1 %2 %3 %4"_s;
    if (const auto name = keySymName(combo.keyCode, layout))
        return line.arg(byName, keysOfI3(combo, *name), exec, toggleCommand());
    if (const auto code = scanCode(combo.keyCode))
        return line.arg(u"bindcode"_s, keysOfI3(combo, *code), exec, toggleCommand());
    return {};
}

QString boundByHyprland(const HotKeyCombo& combo, const KeyboardLayout& layout) {
    auto key = keySymName(combo.keyCode, layout);
    if (const auto code = scanCode(combo.keyCode); !key && code)
        key = u"code:"_s + *code;
    if (!key)
        return {};
    const auto held = modifiersOf(combo, namesInCapitals, u' ');
    return u"bind = %1, %2, exec, %3"_s.arg(held, *key, toggleCommand());
}

std::optional<QString> nameAnyway(std::uint32_t keyCode, const KeyboardLayout& layout) {
    const auto name = keySymName(keyCode, layout);
    return name ? name : ansiKeySymName(keyCode);
}

QString boundByRiver(const HotKeyCombo& combo, const KeyboardLayout& layout) {
    const auto key = nameAnyway(combo.keyCode, layout);
    if (!key)
        return {};
    const auto held = modifiersOf(combo, namesInFull, u'+');
    return u"riverctl map normal %1 %2 spawn \"%3\""_s.arg(held, *key, toggleCommand());
}

QString boundByNiri(const HotKeyCombo& combo, const KeyboardLayout& layout) {
    const auto key = nameAnyway(combo.keyCode, layout);
    if (!key)
        return {};
    const auto held = modifiersOf(combo, namesInFull, u'+');
    return u"%1+%2 { spawn \"sh\" \"-c\" \"%3\"; }"_s.arg(held, *key, toggleCommand());
}

struct Announcement {
    const char* variable;
    BindingSyntax syntax;
};

// sway answers for i3 as well.
constexpr std::array announcements{
    Announcement{"SWAYSOCK", BindingSyntax::Sway},
    Announcement{"HYPRLAND_INSTANCE_SIGNATURE", BindingSyntax::Hyprland},
    Announcement{"NIRI_SOCKET", BindingSyntax::Niri},
    Announcement{"I3SOCK", BindingSyntax::I3},
};

} // namespace

QString toggleCommand() {
    return u"gdbus call --session -d org.quorvane.Quorvane -o /org/quorvane/Quorvane "
           "-m org.freedesktop.Application.ActivateAction toggle '[]' '{}'"_s;
}

QString bindingLine(BindingSyntax syntax, const HotKeyCombo& combo, const KeyboardLayout& layout) {
    if (syntax == BindingSyntax::Command)
        return toggleCommand();
    if (!toModifierFlags(combo.modifiers) || combo.modifiers == 0)
        return {};
    switch (syntax) {
    case BindingSyntax::Sway:
        // By the position that the letter has, so that it works in a second layout as well.
        return boundLikeI3(combo, layout, u"bindsym --to-code"_s, u"exec"_s);
    case BindingSyntax::I3:
        return boundLikeI3(combo, layout, u"bindsym"_s, u"exec --no-startup-id"_s);
    case BindingSyntax::Hyprland:
        return boundByHyprland(combo, layout);
    case BindingSyntax::River:
        return boundByRiver(combo, layout);
    case BindingSyntax::Niri:
        return boundByNiri(combo, layout);
    case BindingSyntax::Command:
        break;
    }
    return {};
}

BindingSyntax announcedSyntax(const Environment& environment) {
    if (!environment)
        return BindingSyntax::Command;
    const auto* found = std::ranges::find_if(announcements, [&](const Announcement& row) {
        return !environment(row.variable).value_or(QString()).isEmpty();
    });
    return found == announcements.end() ? BindingSyntax::Command : found->syntax;
}

} // namespace quorvane
