// SPDX-License-Identifier: MIT
#pragma once

#include <platform/EventTap.h>

#include <QString>
#include <QStringView>

#include <optional>

/// A shortcut in the words of portals.
namespace quorvane::shortcuttrigger {

/// As freedesktop.org has shortcuts written, "CTRL+SHIFT+LOGO+d"; empty for a key that it is not
/// sure to name as the user's keyboard does.
[[nodiscard]] QString preferred(const KeyChord& chord);

/// What a description for people means that is written as most desktops do, "Ctrl+Shift+Meta+D" or
/// "<Control><Shift><Super>d"; none for any other.
[[nodiscard]] std::optional<KeyChord> understood(QStringView description);

} // namespace quorvane::shortcuttrigger
