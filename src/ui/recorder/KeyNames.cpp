// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>
#include <recorder/KeyNames.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

constexpr auto context = "KeyNames";

struct ModifierName {
    std::uint32_t modifier;
    const char* label;
    const char* name;
};

// In the order of the key caps.
constexpr std::array modifierNames{
    ModifierName{
        combomodifier::control,
        QT_TRANSLATE_NOOP("KeyNames", "Ctrl"),
        QT_TRANSLATE_NOOP("KeyNames", "Control")},
    ModifierName{
        combomodifier::option,
        QT_TRANSLATE_NOOP("KeyNames", "Alt"),
        QT_TRANSLATE_NOOP("KeyNames", "Alt")},
    ModifierName{
        combomodifier::shift,
        QT_TRANSLATE_NOOP("KeyNames", "Shift"),
        QT_TRANSLATE_NOOP("KeyNames", "Shift")},
    ModifierName{
        combomodifier::command,
        QT_TRANSLATE_NOOP("KeyNames", "Super"),
        QT_TRANSLATE_NOOP("KeyNames", "Super")},
};

struct KeyName {
    std::uint32_t keyCode;
    const char* name;
};

// Keys that type nothing, or nothing that one could read; those of the keypad, because what they
// type is on another key as well.
constexpr std::array keyNames{
    KeyName{keycode::returnKey, QT_TRANSLATE_NOOP("KeyNames", "Return")},
    KeyName{keycode::tab, QT_TRANSLATE_NOOP("KeyNames", "Tab")},
    KeyName{keycode::space, QT_TRANSLATE_NOOP("KeyNames", "Space")},
    KeyName{keycode::backspace, QT_TRANSLATE_NOOP("KeyNames", "Backspace")},
    KeyName{keycode::escape, QT_TRANSLATE_NOOP("KeyNames", "Escape")},
    KeyName{keycode::keypadDecimal, QT_TRANSLATE_NOOP("KeyNames", "Keypad Decimal")},
    KeyName{keycode::keypadMultiply, QT_TRANSLATE_NOOP("KeyNames", "Keypad Multiply")},
    KeyName{keycode::keypadPlus, QT_TRANSLATE_NOOP("KeyNames", "Keypad Plus")},
    KeyName{keycode::numLock, QT_TRANSLATE_NOOP("KeyNames", "Num Lock")},
    KeyName{keycode::keypadDivide, QT_TRANSLATE_NOOP("KeyNames", "Keypad Divide")},
    KeyName{keycode::keypadEnter, QT_TRANSLATE_NOOP("KeyNames", "Keypad Enter")},
    KeyName{keycode::keypadMinus, QT_TRANSLATE_NOOP("KeyNames", "Keypad Minus")},
    KeyName{keycode::keypadEquals, QT_TRANSLATE_NOOP("KeyNames", "Keypad Equals")},
    KeyName{keycode::keypad0, QT_TRANSLATE_NOOP("KeyNames", "Keypad 0")},
    KeyName{keycode::keypad1, QT_TRANSLATE_NOOP("KeyNames", "Keypad 1")},
    KeyName{keycode::keypad2, QT_TRANSLATE_NOOP("KeyNames", "Keypad 2")},
    KeyName{keycode::keypad3, QT_TRANSLATE_NOOP("KeyNames", "Keypad 3")},
    KeyName{keycode::keypad4, QT_TRANSLATE_NOOP("KeyNames", "Keypad 4")},
    KeyName{keycode::keypad5, QT_TRANSLATE_NOOP("KeyNames", "Keypad 5")},
    KeyName{keycode::keypad6, QT_TRANSLATE_NOOP("KeyNames", "Keypad 6")},
    KeyName{keycode::keypad7, QT_TRANSLATE_NOOP("KeyNames", "Keypad 7")},
    KeyName{keycode::keypad8, QT_TRANSLATE_NOOP("KeyNames", "Keypad 8")},
    KeyName{keycode::keypad9, QT_TRANSLATE_NOOP("KeyNames", "Keypad 9")},
    KeyName{keycode::f1, "F1"},
    KeyName{keycode::f2, "F2"},
    KeyName{keycode::f3, "F3"},
    KeyName{keycode::f4, "F4"},
    KeyName{keycode::f5, "F5"},
    KeyName{keycode::f6, "F6"},
    KeyName{keycode::f7, "F7"},
    KeyName{keycode::f8, "F8"},
    KeyName{keycode::f9, "F9"},
    KeyName{keycode::f10, "F10"},
    KeyName{keycode::f11, "F11"},
    KeyName{keycode::f12, "F12"},
    KeyName{keycode::f13, "F13"},
    KeyName{keycode::f14, "F14"},
    KeyName{keycode::f15, "F15"},
    KeyName{keycode::f16, "F16"},
    KeyName{keycode::f17, "F17"},
    KeyName{keycode::f18, "F18"},
    KeyName{keycode::f19, "F19"},
    KeyName{keycode::f20, "F20"},
    KeyName{keycode::insert, QT_TRANSLATE_NOOP("KeyNames", "Insert")},
    KeyName{keycode::home, QT_TRANSLATE_NOOP("KeyNames", "Home")},
    KeyName{keycode::pageUp, QT_TRANSLATE_NOOP("KeyNames", "Page Up")},
    KeyName{keycode::forwardDelete, QT_TRANSLATE_NOOP("KeyNames", "Delete")},
    KeyName{keycode::end, QT_TRANSLATE_NOOP("KeyNames", "End")},
    KeyName{keycode::pageDown, QT_TRANSLATE_NOOP("KeyNames", "Page Down")},
    KeyName{keycode::leftArrow, QT_TRANSLATE_NOOP("KeyNames", "Left Arrow")},
    KeyName{keycode::rightArrow, QT_TRANSLATE_NOOP("KeyNames", "Right Arrow")},
    KeyName{keycode::downArrow, QT_TRANSLATE_NOOP("KeyNames", "Down Arrow")},
    KeyName{keycode::upArrow, QT_TRANSLATE_NOOP("KeyNames", "Up Arrow")},
    KeyName{keycode::printScreen, QT_TRANSLATE_NOOP("KeyNames", "Print Screen")},
    KeyName{keycode::pause, QT_TRANSLATE_NOOP("KeyNames", "Pause")},
    KeyName{keycode::menu, QT_TRANSLATE_NOOP("KeyNames", "Menu")},
};

constexpr std::array arrowLabels{
    std::pair{keycode::leftArrow, u"←"},
    std::pair{keycode::rightArrow, u"→"},
    std::pair{keycode::downArrow, u"↓"},
    std::pair{keycode::upArrow, u"↑"},
};

/// What is printed on a key that has no name, if one can read it there.
std::optional<QString> readableLabel(std::uint32_t keyCode, const KeyboardLayout& layout) {
    const auto typed = layout.characters(static_cast<std::uint16_t>(keyCode));
    const auto label = HotKeyCombo{keyCode, 0}.keyChar(layout);
    const bool typesSomething = typed && !typed->empty() && !QChar::isSurrogate(typed->front());
    return typesSomething && label.front().isPrint() ? std::optional(label) : std::nullopt;
}

QString keyLabel(std::uint32_t keyCode, const KeyboardLayout& layout) {
    for (const auto& [arrow, label] : arrowLabels) {
        if (arrow == keyCode)
            return QString::fromUtf16(label);
    }
    return spokenKey(keyCode, layout);
}

QStringList modifierTexts(std::uint32_t modifiers, const char* ModifierName::*text) {
    QStringList texts;
    for (const auto& row : modifierNames) {
        if ((modifiers & row.modifier) != 0)
            texts.append(QCoreApplication::translate(context, row.*text));
    }
    return texts;
}

} // namespace

QStringList modifierLabels(std::uint32_t modifiers) {
    return modifierTexts(modifiers, &ModifierName::label);
}

QStringList capLabels(const HotKeyCombo& combo, const KeyboardLayout& layout) {
    return modifierLabels(combo.modifiers) << keyLabel(combo.keyCode, layout);
}

QString shortcutText(const HotKeyCombo& combo, const KeyboardLayout& layout) {
    return (modifierLabels(combo.modifiers) << spokenKey(combo.keyCode, layout)).join(u'+');
}

bool typesVisibleCharacter(std::uint32_t keyCode, const KeyboardLayout& layout) {
    return std::ranges::find(keyNames, keyCode, &KeyName::keyCode) == keyNames.end() &&
           readableLabel(keyCode, layout).has_value();
}

QStringList spokenModifiers(std::uint32_t modifiers) {
    return modifierTexts(modifiers, &ModifierName::name);
}

QString spokenKey(std::uint32_t keyCode, const KeyboardLayout& layout) {
    const auto row = std::ranges::find(keyNames, keyCode, &KeyName::keyCode);
    if (row != keyNames.end())
        return QCoreApplication::translate(context, row->name);
    if (const auto label = readableLabel(keyCode, layout))
        return *label;
    return QCoreApplication::translate("KeyNames", "Key %1").arg(keyCode);
}

QStringList spokenKeys(const HotKeyCombo& combo, const KeyboardLayout& layout) {
    auto names = spokenModifiers(combo.modifiers);
    names.append(spokenKey(combo.keyCode, layout));
    return names;
}

} // namespace quorvane
