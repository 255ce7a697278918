// SPDX-License-Identifier: MIT
#include "ListedEntry.h"

#include <hotkey/ShortcutChord.h>

namespace quorvane {

void rebind(DesktopShortcut& list, const HotKeyCombo& combo) {
    const auto chord = chordOf(combo);
    if (list.bound() && chord && list.holder(*chord).isEmpty())
        list.bind(*chord);
}

} // namespace quorvane
