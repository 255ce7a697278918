// SPDX-License-Identifier: MIT
#include "ShortcutTrigger.h"

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

constexpr std::array keys{
    KeyWord{u"a", keycode::a},
    KeyWord{u"b", keycode::b},
    KeyWord{u"c", keycode::c},
    KeyWord{u"d", keycode::d},
    KeyWord{u"e", keycode::e},
    KeyWord{u"f", keycode::f},
    KeyWord{u"g", keycode::g},
    KeyWord{u"h", keycode::h},
    KeyWord{u"i", keycode::i},
    KeyWord{u"j", keycode::j},
    KeyWord{u"k", keycode::k},
    KeyWord{u"l", keycode::l},
    KeyWord{u"m", keycode::m},
    KeyWord{u"n", keycode::n},
    KeyWord{u"o", keycode::o},
    KeyWord{u"p", keycode::p},
    KeyWord{u"q", keycode::q},
    KeyWord{u"r", keycode::r},
    KeyWord{u"s", keycode::s},
    KeyWord{u"t", keycode::t},
    KeyWord{u"u", keycode::u},
    KeyWord{u"v", keycode::v},
    KeyWord{u"w", keycode::w},
    KeyWord{u"x", keycode::x},
    KeyWord{u"y", keycode::y},
    KeyWord{u"z", keycode::z},
    KeyWord{u"0", keycode::digit0},
    KeyWord{u"1", keycode::digit1},
    KeyWord{u"2", keycode::digit2},
    KeyWord{u"3", keycode::digit3},
    KeyWord{u"4", keycode::digit4},
    KeyWord{u"5", keycode::digit5},
    KeyWord{u"6", keycode::digit6},
    KeyWord{u"7", keycode::digit7},
    KeyWord{u"8", keycode::digit8},
    KeyWord{u"9", keycode::digit9},
    KeyWord{u"F1", keycode::f1},
    KeyWord{u"F2", keycode::f2},
    KeyWord{u"F3", keycode::f3},
    KeyWord{u"F4", keycode::f4},
    KeyWord{u"F5", keycode::f5},
    KeyWord{u"F6", keycode::f6},
    KeyWord{u"F7", keycode::f7},
    KeyWord{u"F8", keycode::f8},
    KeyWord{u"F9", keycode::f9},
    KeyWord{u"F10", keycode::f10},
    KeyWord{u"F11", keycode::f11},
    KeyWord{u"F12", keycode::f12},
    KeyWord{u"space", keycode::space},
    KeyWord{u"Return", keycode::returnKey},
    KeyWord{u"Tab", keycode::tab},
    KeyWord{u"Insert", keycode::insert},
    KeyWord{u"Home", keycode::home},
    KeyWord{u"End", keycode::end},
    KeyWord{u"Left", keycode::leftArrow},
    KeyWord{u"Right", keycode::rightArrow},
    KeyWord{u"Up", keycode::upArrow},
    KeyWord{u"Down", keycode::downArrow},
    KeyWord{u"Page_Up", keycode::pageUp},
    KeyWord{u"Page_Down", keycode::pageDown}};

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

} // namespace

QString preferred(const KeyChord& chord) {
    const auto key = std::ranges::find(keys, chord.keyCode, &KeyWord::keyCode);
    if (key == keys.end())
        return {};
    QString text;
    for (const auto& [word, flag] : writtenModifiers) {
        if ((chord.flags & flag) == flag)
            text.append(word).append(u'+');
    }
    return text.append(key->word);
}

std::optional<KeyChord> understood(QStringView description) {
    constexpr qsizetype longest = 64;
    if (description.size() > longest)
        return std::nullopt;
    auto words = description.toString().remove(u'<').replace(u'>', u'+').split(u'+');
    const auto* key = rowOf(keys, words.takeLast().trimmed());
    if (key == nullptr || words.isEmpty())
        return std::nullopt;
    KeyChord chord{key->keyCode, {}};
    for (const auto& word : words) {
        const auto flag = modifierOf(word.trimmed());
        if (!flag)
            return std::nullopt;
        chord.flags = chord.flags | *flag;
    }
    return chord;
}

} // namespace quorvane::shortcuttrigger
