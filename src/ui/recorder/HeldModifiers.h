// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ModifierFlags.h>

#include <QtGlobal>

#include <map>
#include <optional>

class QKeyEvent;

namespace quorvane {

/// The modifiers that a key event came with, Caps Lock included.
[[nodiscard]] ModifierFlags flagsOf(const QKeyEvent& event);

/// Which modifiers are held once a modifier key has gone down or up. The event itself tells what
/// was held before it, and Qt's own guess at what is held after it takes the second of two Shift
/// keys for the release of the first: so keys are followed one by one.
class HeldModifiers {
public:
    /// None if the key is no modifier. A key that shifts levels or groups (AltGr) is one that has
    /// no flag.
    [[nodiscard]] std::optional<ModifierFlags> afterPress(const QKeyEvent& event);
    [[nodiscard]] std::optional<ModifierFlags> afterRelease(const QKeyEvent& event);

    /// Forgets all keys, for when their releases will not be seen.
    void forget() { m_keys.clear(); }

private:
    [[nodiscard]] ModifierFlags with(ModifierFlags flags) const;

    std::map<quint32, ModifierFlags> m_keys; ///< by the key's native code
};

} // namespace quorvane
