// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace quorvane {

/// The keys by which a window pastes.
enum class PasteKeys { ControlV, ControlShiftV, ShiftInsert };

/// Where those keys take the text from.
enum class PasteSource {
    Clipboard,
    Selection, ///< X11's PRIMARY
};

struct PasteTarget {
    PasteKeys keys = PasteKeys::ControlV;
    PasteSource source = PasteSource::Clipboard;

    friend constexpr bool operator==(const PasteTarget&, const PasteTarget&) = default;
};

/// How an application pastes, by the names its windows carry: both strings of WM_CLASS (ICCCM
/// 4.1.2.5) or the app_id of xdg-shell, in any case. Names that are not known, or no names at all,
/// give Ctrl+V and the clipboard: a terminal's keys must never go to a window that is not a
/// terminal.
[[nodiscard]] PasteTarget pasteTargetFor(const QStringList& classes);

/// The same application on a keyboard without a Latin V: Shift+Insert, the older command that
/// nearly all programs know too. A terminal takes the marked text by it (Selection).
[[nodiscard]] PasteTarget withoutLatinV(const PasteTarget& target);

} // namespace quorvane
