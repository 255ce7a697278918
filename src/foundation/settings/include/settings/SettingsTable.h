// SPDX-License-Identifier: MIT
#pragma once

#include <settings/StoredSetting.h>

namespace quorvane {

// Everything that is stored, one row each: a new setting begins here.

/// In defaults.json.
namespace setting {

/// The default depends on the user's zone: see composition/DefaultFavorites.h.
struct MadeAtFirstStart {};

inline constexpr StoredSetting<QStringList, MadeAtFirstStart> favoriteZones{
    QLatin1StringView("favoriteTZs"), {}};
inline constexpr StoredSetting<bool> showInMenuBar{QLatin1StringView("showInMenuBar"), true};
inline constexpr StoredSetting<bool> showInDock{QLatin1StringView("showInDock"), false};

/// A raw value of model/PresentationMode.h; any other text counts as the default.
inline constexpr StoredSetting<QString, QLatin1StringView> presentationMode{
    QLatin1StringView("presentationMode"), QLatin1StringView("Window")};

/// The key that carries D on an ANSI keyboard (see platform/KeyCodes.h), with Control, Shift and
/// Command. Where a key is stored without modifiers it has none.
inline constexpr StoredSetting<qint64> hotKeyCode{QLatin1StringView("hotKeyCode"), 2};
inline constexpr StoredSetting<qint64> hotKeyModifiers{
    QLatin1StringView("hotKeyModifiers"), 0x1300};

} // namespace setting

/// In windows.json: an object for each window, under its autosave name, with these four numbers.
/// There is no default: a window without a stored frame is placed anew.
namespace windowframesetting {

inline constexpr QLatin1StringView x{"x"};
inline constexpr QLatin1StringView y{"y"};
inline constexpr QLatin1StringView width{"width"};
inline constexpr QLatin1StringView height{"height"};

/// Coordinates of X11 and Wayland windows are 16 bits wide; a frame with a greater number is
/// invalid. Fractions are rounded.
inline constexpr double greatestCoordinate = 32767;

} // namespace windowframesetting

} // namespace quorvane
