// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PasteReader.h>
#include <controls/PopoverEffects.h>
#include <time/Clock.h>
#include <time/CurrentZone.h>
#include <time/UserLocale.h>

namespace quorvane {

/// What the entry of dates and times needs to know of the system. Views keep a copy: they follow
/// clock and zone, which must outlive them, and keep the locale, the effects and the reader
/// they were made with.
struct EntryDependencies {
    const Clock& clock;             ///< marks today
    const CurrentZone& currentZone; ///< days and times are those of this zone
    UserLocale locale;
    PopoverEffects popoverEffects;
    PasteReader pasteReader = {};
};

} // namespace quorvane
