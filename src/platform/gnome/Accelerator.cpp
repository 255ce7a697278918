// SPDX-License-Identifier: MIT
#include "Accelerator.h"

#include "AcceleratorKeys.h"

#include <platform/AnsiKeys.h>
#include <platform/KeyCodes.h>

#include <QList>
#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

using namespace Qt::StringLiterals;

struct ModifierName {
    QStringView name;
    ModifierFlags flag;
};

/// What is written, in this order; what else is read comes after.
constexpr std::array modifierNames{
    ModifierName{u"control", modifier::control},
    ModifierName{u"shift", modifier::shift},
    ModifierName{u"alt", modifier::option},
    ModifierName{u"super", modifier::command},
    ModifierName{u"primary", modifier::control},
    ModifierName{u"ctrl", modifier::control},
    ModifierName{u"ctl", modifier::control},
    ModifierName{u"shft", modifier::shift},
    ModifierName{u"mod1", modifier::option},
    ModifierName{u"mod4", modifier::command}};

constexpr std::array writtenModifiers{
    ModifierName{u"<Control>", modifier::control},
    ModifierName{u"<Shift>", modifier::shift},
    ModifierName{u"<Alt>", modifier::option},
    ModifierName{u"<Super>", modifier::command}};

constexpr int longestName = 64;

std::optional<ModifierFlags> flagNamed(QStringView name) {
    const auto* row = std::ranges::find_if(modifierNames, [name](const ModifierName& known) {
        return known.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return row == modifierNames.end() ? std::nullopt : std::optional(row->flag);
}

std::uint32_t keysymNamed(QStringView name) {
    const auto keysym =
        xkb_keysym_from_name(name.toUtf8().constData(), XKB_KEYSYM_CASE_INSENSITIVE);
    return xkb_keysym_to_lower(keysym);
}

std::optional<Accelerator> withKey(ModifierFlags flags, QStringView name) {
    if (name.compare(u"Above_Tab", Qt::CaseInsensitive) == 0)
        return Accelerator{flags, 0, *scanCodeFromKeyCode(keycode::grave)};
    if (name.startsWith(u"0x")) {
        const auto scanCode = name.mid(2).toUInt(nullptr, 16);
        return scanCode == 0 ? std::nullopt : std::optional(Accelerator{flags, 0, scanCode});
    }
    const auto keysym = keysymNamed(name);
    return keysym == XKB_KEY_NoSymbol ? std::nullopt : std::optional(Accelerator{flags, keysym, 0});
}

QString nameOf(std::uint32_t keysym) {
    std::array<char, longestName> name{};
    xkb_keysym_get_name(keysym, name.data(), name.size());
    return QString::fromUtf8(name.data());
}

/// The one character that the key types in the layout; 0 for none, or for several.
char32_t characterOf(std::uint32_t keyCode, const KeyboardLayout& layout) {
    const auto typed = layout.characters(static_cast<std::uint16_t>(keyCode));
    const auto characters = QString::fromStdU16String(typed.value_or(std::u16string())).toUcs4();
    return characters.size() == 1 ? characters.front() : 0;
}

bool isLatin(char32_t character) {
    constexpr char32_t afterLatin = 0x250;
    return character > U' ' && character < afterLatin;
}

/// 0 where the place of the key has to do.
std::uint32_t keysymOf(std::uint32_t keyCode, const KeyboardLayout& layout) {
    if (const auto named = acceleratorkeys::keysymOf(keyCode))
        return *named;
    const auto character = characterOf(keyCode, layout);
    if (isLatin(character))
        return xkb_keysym_to_lower(xkb_utf32_to_keysym(character));
    // Desktops look for a letter that the layout in use does not have where Latin keyboards have
    // it. A sign they find where that layout has it.
    const auto ofAnsi = ansiCharacterOf(keyCode);
    const bool isKnown = layout.characters(static_cast<std::uint16_t>(keyCode)).has_value();
    const bool isLetter = ofAnsi >= U'a' && ofAnsi <= U'z';
    return isLetter || !isKnown ? xkb_utf32_to_keysym(ofAnsi) : XKB_KEY_NoSymbol;
}

std::optional<std::uint32_t> keyTyping(char32_t character, const KeyboardLayout& layout) {
    const auto keys = ansiKeys();
    for (const auto& key : keys) {
        if (characterOf(key.keyCode, layout) == character)
            return key.keyCode;
    }
    const auto ansi = std::ranges::find(keys, character, &AnsiKey::character);
    return ansi == keys.end() ? std::nullopt : std::optional(ansi->keyCode);
}

} // namespace

std::optional<Accelerator> Accelerator::parse(QStringView text) {
    text = text.trimmed();
    ModifierFlags flags;
    while (text.startsWith(u'<')) {
        const auto end = text.indexOf(u'>');
        const auto flag = flagNamed(text.mid(1, end - 1));
        if (end < 0 || !flag)
            return std::nullopt;
        flags = flags | *flag;
        text = text.mid(end + 1);
    }
    if (text.isEmpty() || text.size() > longestName || text == "disabled"_L1)
        return std::nullopt;
    return withKey(flags, text);
}

QString Accelerator::text() const {
    QString text;
    for (const auto& written : writtenModifiers) {
        if ((flags & written.flag) == written.flag)
            text.append(written.name);
    }
    return text + (keysym != 0 ? nameOf(keysym) : u"0x%1"_s.arg(scanCode, 2, 16, QLatin1Char('0')));
}

std::optional<Accelerator> Accelerator::of(const KeyChord& chord, const KeyboardLayout& layout) {
    const auto place = scanCodeFromKeyCode(chord.keyCode);
    if (!place)
        return std::nullopt;
    const auto flags = chord.flags & modifier::counted;
    const auto keysym = keysymOf(chord.keyCode, layout);
    return keysym != 0 ? Accelerator{flags, keysym, 0} : Accelerator{flags, 0, *place};
}

std::optional<KeyChord> Accelerator::chord(const KeyboardLayout& layout) const {
    std::optional<std::uint32_t> keyCode;
    if (scanCode != 0)
        keyCode = keyCodeFromScanCode(scanCode);
    else if (const auto named = acceleratorkeys::keyCodeOf(keysym))
        keyCode = named;
    else if (const auto character = xkb_keysym_to_utf32(keysym); character != 0)
        keyCode = keyTyping(character, layout);
    return keyCode ? std::optional(KeyChord{*keyCode, flags}) : std::nullopt;
}

} // namespace quorvane
