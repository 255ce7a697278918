// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace quorvane {

/// X11's keycodes, which Wayland keymaps keep, are the kernel's plus this (XKB's evdev rules).
inline constexpr quint32 firstScanCode = 8;

} // namespace quorvane
