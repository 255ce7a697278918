// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// Of XDG Desktop Portal's interfaces.
namespace quorvane::portalname {

inline constexpr QStringView service = u"org.freedesktop.portal.Desktop";
inline constexpr QStringView object = u"/org/freedesktop/portal/desktop";

inline constexpr QStringView registry = u"org.freedesktop.host.portal.Registry";
inline constexpr QStringView request = u"org.freedesktop.portal.Request";
inline constexpr QStringView session = u"org.freedesktop.portal.Session";
inline constexpr QStringView background = u"org.freedesktop.portal.Background";
inline constexpr QStringView clipboard = u"org.freedesktop.portal.Clipboard";
inline constexpr QStringView globalShortcuts = u"org.freedesktop.portal.GlobalShortcuts";
/// Of the desktop's own service.
inline constexpr QStringView globalShortcutsOfTheDesktop =
    u"org.freedesktop.impl.portal.GlobalShortcuts";
inline constexpr QStringView remoteDesktop = u"org.freedesktop.portal.RemoteDesktop";

} // namespace quorvane::portalname
