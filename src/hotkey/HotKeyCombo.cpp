// SPDX-License-Identifier: MIT
#include <hotkey/HotKeyCombo.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct ModifierRow {
    ModifierFlags flag;
    std::uint32_t modifier;
    QStringView glyph;
};

// In the order of displayKeys().
constexpr std::array modifierTable{
    ModifierRow{modifier::control, combomodifier::control, u"⌃"},
    ModifierRow{modifier::option, combomodifier::option, u"⌥"},
    ModifierRow{modifier::shift, combomodifier::shift, u"⇧"},
    ModifierRow{modifier::command, combomodifier::command, u"⌘"},
};

constexpr auto codedKeyCode = "keyCode"_L1;
constexpr auto codedModifiers = "modifiers"_L1;

std::uint32_t checkedUInt32(qint64 value) {
    if (value < 0 || value > std::numeric_limits<std::uint32_t>::max())
        std::abort();
    return static_cast<std::uint32_t>(value);
}

using Field = std::variant<std::uint32_t, HotKeyCombo::DecodingError>;

Field decodeField(const QJsonObject& coded, QLatin1StringView key) {
    using Error = HotKeyCombo::DecodingError;
    const auto value = coded.value(key);
    if (value.isUndefined())
        return Error{Error::Kind::MissingKey, key};
    if (!value.isDouble())
        return Error{Error::Kind::WrongType, key};
    const double number = value.toDouble();
    if (number != std::trunc(number))
        return Error{Error::Kind::WrongType, key};
    if (number < 0 || number > std::numeric_limits<std::uint32_t>::max())
        return Error{Error::Kind::OutOfRange, key};
    return static_cast<std::uint32_t>(number);
}

} // namespace

std::uint32_t toCarbonModifiers(ModifierFlags flags) {
    std::uint32_t modifiers = 0;
    for (const auto& row : modifierTable) {
        if ((flags & row.flag) == row.flag)
            modifiers |= row.modifier;
    }
    return modifiers;
}

std::optional<ModifierFlags> toModifierFlags(std::uint32_t modifiers) {
    ModifierFlags flags;
    for (const auto& row : modifierTable) {
        if ((modifiers & row.modifier) != 0)
            flags = flags | row.flag;
    }
    if (toCarbonModifiers(flags) != modifiers)
        return std::nullopt;
    return flags;
}

HotKeyCombo HotKeyCombo::load(const DefaultsStore& store) {
    const auto keyCode = setting::hotKeyCode.storedIn(store);
    if (!keyCode)
        return {};
    const auto modifiers = setting::hotKeyModifiers.storedIn(store).value_or(0);
    return {checkedUInt32(*keyCode), checkedUInt32(modifiers)};
}

void HotKeyCombo::save(DefaultsStore& store) const {
    store.setTogether([&] {
        setting::hotKeyCode.store(store, keyCode);
        setting::hotKeyModifiers.store(store, modifiers);
    });
}

QJsonObject HotKeyCombo::encoded() const {
    return {{codedKeyCode, qint64{keyCode}}, {codedModifiers, qint64{modifiers}}};
}

HotKeyCombo::Decoded HotKeyCombo::decode(const QJsonObject& coded) {
    const auto keyCode = decodeField(coded, codedKeyCode);
    if (const auto* error = std::get_if<DecodingError>(&keyCode))
        return *error;
    const auto modifiers = decodeField(coded, codedModifiers);
    if (const auto* error = std::get_if<DecodingError>(&modifiers))
        return *error;
    return HotKeyCombo{std::get<std::uint32_t>(keyCode), std::get<std::uint32_t>(modifiers)};
}

QStringList HotKeyCombo::displayKeys(const KeyboardLayout& layout) const {
    QStringList labels;
    for (const auto& row : modifierTable) {
        if ((modifiers & row.modifier) != 0)
            labels.append(row.glyph.toString());
    }
    labels.append(keyChar(layout));
    return labels;
}

QString HotKeyCombo::keyChar(const KeyboardLayout& layout) const {
    if (keyCode > std::numeric_limits<std::uint16_t>::max())
        std::abort();
    const auto typed = layout.characters(static_cast<std::uint16_t>(keyCode));
    if (!typed || typed->empty() || QChar::isSurrogate(typed->front()))
        return u"?"_s;
    return QString(QChar(typed->front())).toUpper();
}

} // namespace quorvane
