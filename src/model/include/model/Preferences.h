// SPDX-License-Identifier: MIT
#pragma once

#include <hotkey/HotKeyCombo.h>
#include <model/PresentationMode.h>
#include <settings/DefaultsStore.h>
#include <time/ZoneDatabase.h>

#include <QStringList>

namespace quorvane {

/// What survives a restart. Keys, types and defaults are in settings/SettingsTable.h.
struct Preferences {
    QStringList favoriteTimeZoneIdentifiers; ///< need not name a zone
    HotKeyCombo hotKey;
    bool showInMenuBar = true;
    bool showInDock = false;
    PresentationMode presentationMode = PresentationMode::Window;
    bool remembersChoices = false;      ///< format and zones survive a restart, too
    bool shortcutHintDismissed = false; ///< the user knows that no shortcut works
    bool wantsTyping = false; ///< the desktop may ask about typing when a text is inserted

    /// What is stored, with defaults for the rest; the favourites of a first start are made from
    /// the current zone. A stored shortcut that is out of range stops the process.
    [[nodiscard]] static Preferences
    load(const DefaultsStore& defaults, const TimeZone& currentZone, const ZoneDatabase& zones);
};

} // namespace quorvane
