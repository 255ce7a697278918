// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyCodes.h>
#include <platform/KeyboardLayout.h>
#include <platform/ModifierFlags.h>
#include <settings/SettingsTable.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <variant>

namespace quorvane {

/// The modifier keys of a stored shortcut. The layout of the bits is older than the one of live
/// modifier flags and differs from it; settings hold this one.
namespace combomodifier {

inline constexpr std::uint32_t command = 0x100;
inline constexpr std::uint32_t shift = 0x200;
inline constexpr std::uint32_t option = 0x800;
inline constexpr std::uint32_t control = 0x1000;

} // namespace combomodifier

/// Live flags as the modifiers of a shortcut; flags that do not count are dropped.
[[nodiscard]] std::uint32_t toCarbonModifiers(ModifierFlags flags);

/// The inverse; none if `modifiers` has a bit that no live flags map to, so that no press can
/// match.
[[nodiscard]] std::optional<ModifierFlags> toModifierFlags(std::uint32_t modifiers);

/// The global shortcut: a key by its position and a set of modifiers.
struct HotKeyCombo {
    static constexpr auto defaultKeyCode =
        static_cast<std::uint32_t>(setting::hotKeyCode.defaultValue);
    static constexpr auto defaultModifiers =
        static_cast<std::uint32_t>(setting::hotKeyModifiers.defaultValue);

    /// What a coded form lacks or holds wrongly, for the caller of decode().
    struct DecodingError {
        enum class Kind { MissingKey, WrongType, OutOfRange };

        Kind kind = Kind::MissingKey;
        QString key;

        friend bool operator==(const DecodingError&, const DecodingError&) = default;
    };

    using Decoded = std::variant<HotKeyCombo, DecodingError>;

    std::uint32_t keyCode = defaultKeyCode; ///< see platform/KeyCodes.h
    std::uint32_t modifiers = defaultModifiers;

    friend constexpr bool operator==(const HotKeyCombo&, const HotKeyCombo&) = default;

    /// The stored shortcut, or the default if no number is stored for its key. Missing modifiers
    /// are none. A number outside 0 to 4294967295 stops the process.
    [[nodiscard]] static HotKeyCombo load(const DefaultsStore& store);

    /// Stores both numbers.
    void save(DefaultsStore& store) const;

    /// The coded form: an object with "keyCode" and "modifiers". For exchange with other programs
    /// and formats; the settings hold the two numbers of save().
    [[nodiscard]] QJsonObject encoded() const;
    [[nodiscard]] static Decoded decode(const QJsonObject& coded);

    /// The shortcut in the glyphs of a Mac's keys: those of "⌃", "⌥", "⇧", "⌘" that are set, in
    /// this order, then the key. What a key cap shows here are the words of recorder/KeyNames.h.
    [[nodiscard]] QStringList displayKeys(const KeyboardLayout& layout) const;

    /// What the key types in the layout, in upper case; "?" where there is nothing to show. A key
    /// code above 0xFFFF stops the process.
    [[nodiscard]] QString keyChar(const KeyboardLayout& layout) const;
};

} // namespace quorvane
