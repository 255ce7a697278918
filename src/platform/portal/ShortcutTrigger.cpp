// SPDX-License-Identifier: MIT
#include "ShortcutTrigger.h"

#include <platform/AnsiKeys.h>
#include <platform/KeyCodes.h>

#include <QStringList>

#include <algorithm>
#include <array>
#include <cstdint>

namespace quorvane::shortcuttrigger {

using namespace Qt::StringLiterals;

namespace {

struct ModifierWord {
    QStringView word;
    ModifierFlags flag;
};

struct KeyWord {
    QStringView word; ///< the keysym's name
    std::uint32_t keyCode;
};

/// In the order in which they are written.
constexpr std::array writtenModifiers{
    ModifierWord{u"CTRL", modifier::control},
    ModifierWord{u"ALT", modifier::option},
    ModifierWord{u"SHIFT", modifier::shift},
    ModifierWord{u"LOGO", modifier::command}};

constexpr std::array otherModifiers{
    ModifierWord{u"CONTROL", modifier::control},
    ModifierWord{u"PRIMARY", modifier::control},
    ModifierWord{u"META", modifier::command},
    ModifierWord{u"SUPER", modifier::command}};

/// Beside letters and digits.
constexpr std::array namedKeys{
    KeyWord{u"F1", keycode::f1},          KeyWord{u"F2", keycode::f2},
    KeyWord{u"F3", keycode::f3},          KeyWord{u"F4", keycode::f4},
    KeyWord{u"F5", keycode::f5},          KeyWord{u"F6", keycode::f6},
    KeyWord{u"F7", keycode::f7},          KeyWord{u"F8", keycode::f8},
    KeyWord{u"F9", keycode::f9},          KeyWord{u"F10", keycode::f10},
    KeyWord{u"F11", keycode::f11},        KeyWord{u"F12", keycode::f12},
    KeyWord{u"space", keycode::space},    KeyWord{u"Return", keycode::returnKey},
    KeyWord{u"Tab", keycode::tab},        KeyWord{u"Insert", keycode::insert},
    KeyWord{u"Home", keycode::home},      KeyWord{u"End", keycode::end},
    KeyWord{u"Left", keycode::leftArrow}, KeyWord{u"Right", keycode::rightArrow},
    KeyWord{u"Up", keycode::upArrow},     KeyWord{u"Down", keycode::downArrow},
    KeyWord{u"Page_Up", keycode::pageUp}, KeyWord{u"Page_Down", keycode::pageDown}};

template <typename Rows>
auto rowOf(const Rows& rows, QStringView word) -> const typename Rows::value_type* {
    const auto row = std::ranges::find_if(rows, [word](const auto& known) {
        return known.word.compare(word, Qt::CaseInsensitive) == 0;
    });
    return row == rows.end() ? nullptr : &*row;
}

std::optional<ModifierFlags> modifierOf(QStringView word) {
    if (const auto* row = rowOf(writtenModifiers, word))
        return row->flag;
    const auto* row = rowOf(otherModifiers, word);
    return row != nullptr ? std::optional(row->flag) : std::nullopt;
}

QString wordOf(std::uint32_t keyCode) {
    const QChar typed(static_cast<char16_t>(ansiCharacterOf(keyCode)));
    if (typed.isLetterOrNumber())
        return typed;
    const auto* row = std::ranges::find(namedKeys, keyCode, &KeyWord::keyCode);
    return row == namedKeys.end() ? QString() : row->word.toString();
}

std::optional<std::uint32_t> keyCodeOf(QStringView word) {
    if (const auto* row = rowOf(namedKeys, word))
        return row->keyCode;
    if (word.size() != 1 || !word.front().isLetterOrNumber())
        return std::nullopt;
    const auto keys = ansiKeys();
    const char32_t character = word.front().toLower().unicode();
    const auto key = std::ranges::find(keys, character, &AnsiKey::character);
    return key == keys.end() ? std::nullopt : std::optional(key->keyCode);
}

} // namespace

QString preferred(const KeyChord& chord) {
    const auto key = wordOf(chord.keyCode);
    if (key.isEmpty())
        return {};
    QString text;
    for (const auto& [word, flag] : writtenModifiers) {
        if ((chord.flags & flag) == flag)
            text.append(word).append(u'+');
    }
    return text.append(key);
}

std::optional<KeyChord> understood(QStringView description) {
    constexpr qsizetype longest = 64;
    if (description.size() > longest)
        return std::nullopt;
    // GNOME writes "Press <Control>d", in the user's language.
    const auto modifiers = description.sliced(std::max(description.indexOf(u'<'), qsizetype{0}));
    auto words = modifiers.toString().remove(u'<').replace(u'>', u'+').split(u'+');
    const auto key = keyCodeOf(words.takeLast().trimmed());
    if (!key || words.isEmpty())
        return std::nullopt;
    KeyChord chord{*key, {}};
    for (const auto& word : words) {
        const auto flag = modifierOf(word.trimmed());
        if (!flag)
            return std::nullopt;
        chord.flags = chord.flags | *flag;
    }
    return chord;
}

} // namespace quorvane::shortcuttrigger
