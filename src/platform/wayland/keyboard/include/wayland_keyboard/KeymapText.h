// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>

namespace quorvane {

/// A file in memory with the text and the zero at its end, for the way to another process; -1 where
/// the system gives none. To be closed by the caller.
[[nodiscard]] int keymapFile(const QByteArray& text);

/// What a file of another process holds, to its first zero; empty if it cannot be read, is longer
/// than any keymap, or shorter than it was said to be. Never waits, and the file may shrink.
[[nodiscard]] QByteArray keymapTextIn(int file, std::uint32_t size);

} // namespace quorvane
