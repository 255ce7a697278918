// SPDX-License-Identifier: MIT
#include "KeySymNames.h"

#include <platform/AnsiKeys.h>
#include <platform/KeyCodes.h>

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

struct KeyName {
    std::uint32_t keyCode;
    const char* name;
};

// Keys that are the same in every layout.
constexpr std::array fixedKeys{
    KeyName{keycode::returnKey, "Return"},
    KeyName{keycode::tab, "Tab"},
    KeyName{keycode::space, "space"},
    KeyName{keycode::backspace, "BackSpace"},
    KeyName{keycode::escape, "Escape"},
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
    KeyName{keycode::insert, "Insert"},
    KeyName{keycode::home, "Home"},
    KeyName{keycode::pageUp, "Page_Up"},
    KeyName{keycode::forwardDelete, "Delete"},
    KeyName{keycode::end, "End"},
    KeyName{keycode::pageDown, "Page_Down"},
    KeyName{keycode::leftArrow, "Left"},
    KeyName{keycode::rightArrow, "Right"},
    KeyName{keycode::downArrow, "Down"},
    KeyName{keycode::upArrow, "Up"},
    KeyName{keycode::printScreen, "Print"},
    KeyName{keycode::pause, "Pause"},
    KeyName{keycode::menu, "Menu"},
};

struct SignName {
    char character;
    const char* name;
};

constexpr std::array signNames{
    SignName{'!', "exclam"},       SignName{'"', "quotedbl"},    SignName{'#', "numbersign"},
    SignName{'$', "dollar"},       SignName{'%', "percent"},     SignName{'&', "ampersand"},
    SignName{'\'', "apostrophe"},  SignName{'(', "parenleft"},   SignName{')', "parenright"},
    SignName{'*', "asterisk"},     SignName{'+', "plus"},        SignName{',', "comma"},
    SignName{'-', "minus"},        SignName{'.', "period"},      SignName{'/', "slash"},
    SignName{':', "colon"},        SignName{';', "semicolon"},   SignName{'<', "less"},
    SignName{'=', "equal"},        SignName{'>', "greater"},     SignName{'?', "question"},
    SignName{'@', "at"},           SignName{'[', "bracketleft"}, SignName{'\\', "backslash"},
    SignName{']', "bracketright"}, SignName{'^', "asciicircum"}, SignName{'_', "underscore"},
    SignName{'`', "grave"},        SignName{'{', "braceleft"},   SignName{'|', "bar"},
    SignName{'}', "braceright"},   SignName{'~', "asciitilde"},
};

std::optional<QString> fixedName(std::uint32_t keyCode) {
    const auto* row = std::ranges::find(fixedKeys, keyCode, &KeyName::keyCode);
    return row == fixedKeys.end() ? std::nullopt : std::optional(QString::fromLatin1(row->name));
}

std::optional<QString> characterName(char16_t character) {
    const QChar typed(character);
    if (character < 0x80 && typed.isLetterOrNumber())
        return QString(typed.toLower());
    const auto* row = std::ranges::find(signNames, character, &SignName::character);
    return row == signNames.end() ? std::nullopt : std::optional(QString::fromLatin1(row->name));
}

} // namespace

std::optional<QString> keySymName(std::uint32_t keyCode, const KeyboardLayout& layout) {
    if (auto name = fixedName(keyCode))
        return name;
    if (keyCode > 0xffff)
        return std::nullopt;
    const auto typed = layout.characters(static_cast<std::uint16_t>(keyCode));
    return typed && typed->size() == 1 ? characterName(typed->front()) : std::nullopt;
}

std::optional<QString> ansiKeySymName(std::uint32_t keyCode) {
    if (auto name = fixedName(keyCode))
        return name;
    return characterName(static_cast<char16_t>(ansiCharacterOf(keyCode)));
}

} // namespace quorvane
