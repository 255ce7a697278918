// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>
#include <recorder/KeyNames.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <linux/input-event-codes.h>

namespace quorvane {

namespace {

constexpr auto context = "KeyNames";

constexpr std::uint32_t unnamed(std::uint32_t evdevCode) {
    return keycode::unnamedBase + evdevCode;
}

struct ModifierName {
    std::uint32_t modifier;
    const char* name;
};

// In the order of the key caps.
constexpr std::array modifierNames{
    ModifierName{combomodifier::control, QT_TRANSLATE_NOOP("KeyNames", "Control")},
    ModifierName{combomodifier::option, QT_TRANSLATE_NOOP("KeyNames", "Alt")},
    ModifierName{combomodifier::shift, QT_TRANSLATE_NOOP("KeyNames", "Shift")},
    ModifierName{combomodifier::command, QT_TRANSLATE_NOOP("KeyNames", "Super")},
};

struct KeyName {
    std::uint32_t keyCode;
    const char* name;
};

// Keys that type nothing, or nothing that one could read; those of the keypad, because what they
// type is on another key as well.
constexpr std::array keyNames{
    KeyName{36, QT_TRANSLATE_NOOP("KeyNames", "Return")},
    KeyName{48, QT_TRANSLATE_NOOP("KeyNames", "Tab")},
    KeyName{49, QT_TRANSLATE_NOOP("KeyNames", "Space")},
    KeyName{51, QT_TRANSLATE_NOOP("KeyNames", "Backspace")},
    KeyName{53, QT_TRANSLATE_NOOP("KeyNames", "Escape")},
    KeyName{65, QT_TRANSLATE_NOOP("KeyNames", "Keypad Decimal")},
    KeyName{67, QT_TRANSLATE_NOOP("KeyNames", "Keypad Multiply")},
    KeyName{69, QT_TRANSLATE_NOOP("KeyNames", "Keypad Plus")},
    KeyName{71, QT_TRANSLATE_NOOP("KeyNames", "Num Lock")},
    KeyName{75, QT_TRANSLATE_NOOP("KeyNames", "Keypad Divide")},
    KeyName{76, QT_TRANSLATE_NOOP("KeyNames", "Keypad Enter")},
    KeyName{78, QT_TRANSLATE_NOOP("KeyNames", "Keypad Minus")},
    KeyName{81, QT_TRANSLATE_NOOP("KeyNames", "Keypad Equals")},
    KeyName{82, QT_TRANSLATE_NOOP("KeyNames", "Keypad 0")},
    KeyName{83, QT_TRANSLATE_NOOP("KeyNames", "Keypad 1")},
    KeyName{84, QT_TRANSLATE_NOOP("KeyNames", "Keypad 2")},
    KeyName{85, QT_TRANSLATE_NOOP("KeyNames", "Keypad 3")},
    KeyName{86, QT_TRANSLATE_NOOP("KeyNames", "Keypad 4")},
    KeyName{87, QT_TRANSLATE_NOOP("KeyNames", "Keypad 5")},
    KeyName{88, QT_TRANSLATE_NOOP("KeyNames", "Keypad 6")},
    KeyName{89, QT_TRANSLATE_NOOP("KeyNames", "Keypad 7")},
    KeyName{91, QT_TRANSLATE_NOOP("KeyNames", "Keypad 8")},
    KeyName{92, QT_TRANSLATE_NOOP("KeyNames", "Keypad 9")},
    KeyName{122, "F1"},
    KeyName{120, "F2"},
    KeyName{99, "F3"},
    KeyName{118, "F4"},
    KeyName{96, "F5"},
    KeyName{97, "F6"},
    KeyName{98, "F7"},
    KeyName{100, "F8"},
    KeyName{101, "F9"},
    KeyName{109, "F10"},
    KeyName{103, "F11"},
    KeyName{111, "F12"},
    KeyName{105, "F13"},
    KeyName{107, "F14"},
    KeyName{113, "F15"},
    KeyName{106, "F16"},
    KeyName{64, "F17"},
    KeyName{79, "F18"},
    KeyName{80, "F19"},
    KeyName{90, "F20"},
    KeyName{114, QT_TRANSLATE_NOOP("KeyNames", "Insert")},
    KeyName{115, QT_TRANSLATE_NOOP("KeyNames", "Home")},
    KeyName{116, QT_TRANSLATE_NOOP("KeyNames", "Page Up")},
    KeyName{117, QT_TRANSLATE_NOOP("KeyNames", "Delete")},
    KeyName{119, QT_TRANSLATE_NOOP("KeyNames", "End")},
    KeyName{121, QT_TRANSLATE_NOOP("KeyNames", "Page Down")},
    KeyName{123, QT_TRANSLATE_NOOP("KeyNames", "Left Arrow")},
    KeyName{124, QT_TRANSLATE_NOOP("KeyNames", "Right Arrow")},
    KeyName{125, QT_TRANSLATE_NOOP("KeyNames", "Down Arrow")},
    KeyName{126, QT_TRANSLATE_NOOP("KeyNames", "Up Arrow")},
    KeyName{unnamed(KEY_SYSRQ), QT_TRANSLATE_NOOP("KeyNames", "Print Screen")},
    KeyName{unnamed(KEY_PAUSE), QT_TRANSLATE_NOOP("KeyNames", "Pause")},
    KeyName{unnamed(KEY_COMPOSE), QT_TRANSLATE_NOOP("KeyNames", "Menu")},
};

/// What is on the cap, if one can read it there.
std::optional<QString> readableLabel(std::uint32_t keyCode, const KeyboardLayout& layout) {
    const auto typed = layout.characters(static_cast<std::uint16_t>(keyCode));
    const auto label = HotKeyCombo{keyCode, 0}.keyChar(layout);
    const bool typesSomething = typed && !typed->empty() && !QChar::isSurrogate(typed->front());
    return typesSomething && label.front().isPrint() ? std::optional(label) : std::nullopt;
}

} // namespace

QStringList spokenModifiers(std::uint32_t modifiers) {
    QStringList names;
    for (const auto& row : modifierNames) {
        if ((modifiers & row.modifier) != 0)
            names.append(QCoreApplication::translate(context, row.name));
    }
    return names;
}

QString spokenKey(std::uint32_t keyCode, const KeyboardLayout& layout) {
    const auto row = std::ranges::find(keyNames, keyCode, &KeyName::keyCode);
    if (row != keyNames.end())
        return QCoreApplication::translate(context, row->name);
    if (const auto label = readableLabel(keyCode, layout))
        return *label;
    return QCoreApplication::translate(context, "Key %1").arg(keyCode);
}

QStringList spokenKeys(const HotKeyCombo& combo, const KeyboardLayout& layout) {
    auto names = spokenModifiers(combo.modifiers);
    names.append(spokenKey(combo.keyCode, layout));
    return names;
}

} // namespace quorvane
