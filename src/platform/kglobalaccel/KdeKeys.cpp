// SPDX-License-Identifier: MIT
#include "KdeKeys.h"

#include <platform/KeyCodes.h>

#include <QChar>

#include <algorithm>
#include <array>
#include <string>

namespace quorvane {

namespace {

constexpr char16_t lastOfLatin1 = 0xFF;
constexpr std::uint32_t lastNamedKeyCode = 0x7F;

struct NamedKey {
    std::uint32_t keyCode;
    Qt::Key key;
};

constexpr std::array namedKeys{
    NamedKey{keycode::returnKey, Qt::Key_Return},
    NamedKey{keycode::keypadEnter, Qt::Key_Enter},
    NamedKey{keycode::tab, Qt::Key_Tab},
    NamedKey{keycode::space, Qt::Key_Space},
    NamedKey{keycode::backspace, Qt::Key_Backspace},
    NamedKey{keycode::escape, Qt::Key_Escape},
    NamedKey{keycode::forwardDelete, Qt::Key_Delete},
    NamedKey{keycode::insert, Qt::Key_Insert},
    NamedKey{keycode::home, Qt::Key_Home},
    NamedKey{keycode::end, Qt::Key_End},
    NamedKey{keycode::pageUp, Qt::Key_PageUp},
    NamedKey{keycode::pageDown, Qt::Key_PageDown},
    NamedKey{keycode::leftArrow, Qt::Key_Left},
    NamedKey{keycode::rightArrow, Qt::Key_Right},
    NamedKey{keycode::upArrow, Qt::Key_Up},
    NamedKey{keycode::downArrow, Qt::Key_Down},
    NamedKey{keycode::f1, Qt::Key_F1},
    NamedKey{keycode::f2, Qt::Key_F2},
    NamedKey{keycode::f3, Qt::Key_F3},
    NamedKey{keycode::f4, Qt::Key_F4},
    NamedKey{keycode::f5, Qt::Key_F5},
    NamedKey{keycode::f6, Qt::Key_F6},
    NamedKey{keycode::f7, Qt::Key_F7},
    NamedKey{keycode::f8, Qt::Key_F8},
    NamedKey{keycode::f9, Qt::Key_F9},
    NamedKey{keycode::f10, Qt::Key_F10},
    NamedKey{keycode::f11, Qt::Key_F11},
    NamedKey{keycode::f12, Qt::Key_F12},
    NamedKey{keycode::f13, Qt::Key_F13},
    NamedKey{keycode::f14, Qt::Key_F14},
    NamedKey{keycode::f15, Qt::Key_F15},
    NamedKey{keycode::f16, Qt::Key_F16},
    NamedKey{keycode::f17, Qt::Key_F17},
    NamedKey{keycode::f18, Qt::Key_F18},
    NamedKey{keycode::f19, Qt::Key_F19},
    NamedKey{keycode::f20, Qt::Key_F20},
    NamedKey{keycode::pause, Qt::Key_Pause},
    NamedKey{keycode::menu, Qt::Key_Menu},
};

// From A to Z, where a US keyboard has them: with Ctrl, Qt takes the Latin letter of a key that
// types one of another script.
constexpr std::array latinLetters{
    keycode::a, keycode::b, keycode::c, keycode::d, keycode::e, keycode::f, keycode::g,
    keycode::h, keycode::i, keycode::j, keycode::k, keycode::l, keycode::m, keycode::n,
    keycode::o, keycode::p, keycode::q, keycode::r, keycode::s, keycode::t, keycode::u,
    keycode::v, keycode::w, keycode::x, keycode::y, keycode::z,
};

struct ModifierPair {
    ModifierFlags flag;
    Qt::KeyboardModifier modifier;
};

constexpr std::array modifierPairs{
    ModifierPair{modifier::shift, Qt::ShiftModifier},
    ModifierPair{modifier::control, Qt::ControlModifier},
    ModifierPair{modifier::option, Qt::AltModifier},
    ModifierPair{modifier::command, Qt::MetaModifier},
};

bool has(ModifierFlags flags, ModifierFlags flag) {
    return (flags & flag) == flag;
}

Qt::KeyboardModifiers modifiersOf(ModifierFlags flags) {
    Qt::KeyboardModifiers modifiers;
    for (const auto& pair : modifierPairs) {
        if (has(flags, pair.flag))
            modifiers |= pair.modifier;
    }
    return modifiers;
}

ModifierFlags flagsOf(Qt::KeyboardModifiers modifiers) {
    ModifierFlags flags;
    for (const auto& pair : modifierPairs) {
        if (modifiers.testFlag(pair.modifier))
            flags = flags | pair.flag;
    }
    return flags;
}

int combined(Qt::KeyboardModifiers modifiers, int key) {
    return QKeyCombination(modifiers, static_cast<Qt::Key>(key)).toCombined();
}

/// The one character of a text; 0 for none, and for more.
char16_t single(const std::optional<std::u16string>& text) {
    return text && text->size() == 1 && QChar::isPrint(text->front()) ? text->front() : u'\0';
}

char16_t latinLetterAt(std::uint32_t keyCode) {
    const auto* found = std::ranges::find(latinLetters, keyCode);
    return found == latinLetters.end()
               ? u'\0'
               : static_cast<char16_t>(u'A' + (found - latinLetters.begin()));
}

/// As Qt numbers it: in upper case, as long as Latin-1 has that.
char16_t keyOfCharacter(char16_t character) {
    const auto upper = QChar::toUpper(character);
    return upper > lastOfLatin1 && character <= lastOfLatin1 ? character
                                                             : static_cast<char16_t>(upper);
}

char16_t plainKey(std::uint32_t keyCode, const KeyboardLayout& layout) {
    const auto plain = single(layout.characters(static_cast<std::uint16_t>(keyCode)));
    const auto latin = plain > lastOfLatin1 ? latinLetterAt(keyCode) : u'\0';
    return latin != u'\0' ? latin : keyOfCharacter(plain);
}

/// What the key types with Shift, where that is not just the same letter in upper case.
char16_t otherKeyWithShift(std::uint32_t keyCode, const KeyboardLayout& layout) {
    const auto plain = plainKey(keyCode, layout);
    const auto shifted = single(layout.shiftedCharacters(static_cast<std::uint16_t>(keyCode)));
    return QChar::isLetter(plain) || shifted == plain ? u'\0' : shifted;
}

std::optional<int> namedKdeKey(const KeyChord& chord) {
    const auto named = std::ranges::find(namedKeys, chord.keyCode, &NamedKey::keyCode);
    if (named == namedKeys.end())
        return std::nullopt;
    const auto modifiers = modifiersOf(chord.flags);
    if (named->key == Qt::Key_Tab && has(chord.flags, modifier::shift))
        return combined(modifiers & ~Qt::ShiftModifier, Qt::Key_Backtab);
    return combined(modifiers, named->key);
}

template <typename Matches>
std::optional<std::uint32_t> firstKeyCode(Matches matches) {
    // The keypad stands behind the keys whose characters it types as well.
    for (std::uint32_t keyCode = 0; keyCode <= lastNamedKeyCode; ++keyCode) {
        if (evdevFromKeyCode(keyCode) && matches(keyCode))
            return keyCode;
    }
    return std::nullopt;
}

std::optional<KeyChord>
chordTyping(char16_t key, ModifierFlags flags, const KeyboardLayout& layout) {
    if (const auto plain =
            firstKeyCode([&](std::uint32_t code) { return plainKey(code, layout) == key; }))
        return KeyChord{*plain, flags};
    if (const auto shifted = firstKeyCode(
            [&](std::uint32_t code) { return otherKeyWithShift(code, layout) == key; }))
        return KeyChord{*shifted, flags | modifier::shift};
    return std::nullopt;
}

} // namespace

std::optional<int> kdeKeyOf(const KeyChord& chord, const KeyboardLayout& layout) {
    if (const auto named = namedKdeKey(chord))
        return named;
    const auto modifiers = modifiersOf(chord.flags);
    const auto plain = plainKey(chord.keyCode, layout);
    if (plain == u'\0')
        return std::nullopt;
    const auto other =
        has(chord.flags, modifier::shift) ? otherKeyWithShift(chord.keyCode, layout) : u'\0';
    return other != u'\0' ? combined(modifiers & ~Qt::ShiftModifier, other)
                          : combined(modifiers, plain);
}

std::optional<KeyChord> chordOfKdeKey(int key, const KeyboardLayout& layout) {
    const auto combination = QKeyCombination::fromCombined(key);
    const int rest = combination.key();
    const auto flags = flagsOf(combination.keyboardModifiers());
    if (flags == modifier::none || modifiersOf(flags) != combination.keyboardModifiers())
        return std::nullopt;
    if (rest == Qt::Key_Backtab)
        return KeyChord{keycode::tab, flags | modifier::shift};
    const auto named = std::ranges::find_if(
        namedKeys, [rest](const NamedKey& candidate) { return candidate.key == rest; });
    if (named != namedKeys.end())
        return KeyChord{named->keyCode, flags};
    const bool isCharacter = rest > Qt::Key_Space && rest <= 0xFFFF;
    return isCharacter ? chordTyping(static_cast<char16_t>(rest), flags, layout) : std::nullopt;
}

} // namespace quorvane
