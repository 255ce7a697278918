// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>
#include <platform_xdg/IniFile.h>

namespace quorvane {

/// What KDE's file of settings, kdeglobals, says about the look of programs: dark or light by the
/// window's colour, or else by the name of the colours.
[[nodiscard]] DesktopAppearance appearanceOfKde(const IniFile& kdeglobals);

} // namespace quorvane
