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

/// Whether the user has chosen to let the desktop ask about typing: in later runs the first
/// insertion may open its question by itself.
inline constexpr StoredSetting<bool> wantsTyping{QLatin1StringView("allowTyping"), false};

/// What the desktop gave so that it need not ask in the next run; empty for none.
inline constexpr StoredSetting<QString, QLatin1StringView> typingToken{
    QLatin1StringView("typingToken"), QLatin1StringView("")};

/// Whether the user does not want to be told again that no shortcut works.
inline constexpr StoredSetting<bool> shortcutHintDismissed{
    QLatin1StringView("shortcutHintDismissed"), false};

/// Whether the user has had the desktop's portal add the shortcut.
inline constexpr StoredSetting<bool> portalShortcut{QLatin1StringView("portalShortcut"), false};

/// Whether the desktop's portal has let a program in a sandbox start at login.
inline constexpr StoredSetting<bool> portalAutostart{QLatin1StringView("portalAutostart"), false};

/// Whether the choices below are kept. While it is off they are neither read nor written.
inline constexpr StoredSetting<bool> remembersChoices{
    QLatin1StringView("rememberFormatAndZones"), false};

/// Raw values of composition/DateFormatPreset.h and MultiZoneLayout.h; any other text counts as
/// nothing stored. Identifiers that name no zone are left out. Without date and time both are
/// shown.
inline constexpr StoredSetting<QString, QLatin1StringView> formatPreset{
    QLatin1StringView("formatPreset"), QLatin1StringView("Long")};
inline constexpr StoredSetting<QString, QLatin1StringView> customFormat{
    QLatin1StringView("customFormat"), QLatin1StringView("yyyy-MM-dd HH:mm zzz")};
inline constexpr StoredSetting<QString, QLatin1StringView> multiZoneLayout{
    QLatin1StringView("multiZoneLayout"), QLatin1StringView("Inline")};
inline constexpr StoredSetting<bool> includeDate{QLatin1StringView("includeDate"), true};
inline constexpr StoredSetting<bool> includeTime{QLatin1StringView("includeTime"), true};
inline constexpr StoredSetting<QStringList, MadeAtFirstStart> selectedZones{
    QLatin1StringView("selectedTZs"), {}};

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
