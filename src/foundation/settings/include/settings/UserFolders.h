// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <QString>
#include <QStringList>

namespace quorvane {

/// Where this program keeps the user's files, by the XDG Base Directory Specification. The folders
/// need not exist yet.
struct UserFolders {
    QString config; ///< settings: $XDG_CONFIG_HOME/quorvane, by default ~/.config/quorvane
    QString state;  ///< what a run leaves behind: $XDG_STATE_HOME/quorvane, ~/.local/state/quorvane

    /// A variable that is empty or holds a relative path counts as not set. Without a HOME the
    /// system's list of users tells it.
    [[nodiscard]] static UserFolders fromEnvironment(const Environment& environment);

    [[nodiscard]] QString defaultsFile() const;
    [[nodiscard]] QString windowsFile() const;
};

/// Where programs look for settings, by the same standard: the user's own folder, then the
/// system's ($XDG_CONFIG_DIRS, by default /etc/xdg).
[[nodiscard]] QStringList settingsFolders(const Environment& environment);

} // namespace quorvane
