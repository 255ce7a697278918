// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace quorvane {

/// The keymap "us" as a text for compositors; empty if xkeyboard-config cannot be read. It takes
/// some milliseconds.
[[nodiscard]] QByteArray makeOwnKeymap();

/// Whether a keymap that the compositor gives out is the one that makeOwnKeymap() made.
[[nodiscard]] bool isOwnKeymap(const QByteArray& text);

} // namespace quorvane
