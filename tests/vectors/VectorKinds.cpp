// SPDX-License-Identifier: MIT
#include "VectorKinds.h"

#include <algorithm>
#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct VectorKind {
    QLatin1StringView name; ///< of its files, without suffix
    VectorCheck check;
};

constexpr std::array kinds{
    VectorKind{"presets"_L1, checkPreset},
    VectorKind{"format_fixed"_L1, checkFormat},
    VectorKind{"format_locale"_L1, checkFormat},
    VectorKind{"format_custom"_L1, checkCustomFormat},
    VectorKind{"chips"_L1, checkChip},
    VectorKind{"compose"_L1, checkComposition},
    VectorKind{"available_presets"_L1, checkAvailablePresets},
    VectorKind{"slots"_L1, checkSlots},
    VectorKind{"include_guard"_L1, checkIncludeGuard},
    VectorKind{"default_favorites"_L1, checkDefaultFavorites},
    VectorKind{"time_parse"_L1, checkNumberText},
    VectorKind{"step"_L1, checkTimeStep},
    VectorKind{"load_save"_L1, checkTimeEntry},
    VectorKind{"hotkey_flags"_L1, checkHotKeyFlags},
    VectorKind{"hotkey_display"_L1, checkHotKeyDisplay},
    VectorKind{"hotkey_load"_L1, checkHotKeyLoad},
    VectorKind{"hotkey_keychar"_L1, checkHotKeyKeyChar},
    VectorKind{"universe"_L1, checkUniverse},
    VectorKind{"alias"_L1, checkAlias},
    VectorKind{"search"_L1, checkSearch},
    VectorKind{"starred"_L1, checkStarred},
    VectorKind{"catalogue_sort"_L1, checkCatalogueSort},
    VectorKind{"offset_text"_L1, checkOffsetText},
    VectorKind{"labels"_L1, checkLabel},
    VectorKind{"labels_by_zone"_L1, checkLabelByZone},
    VectorKind{"toggle"_L1, checkToggle},
    VectorKind{"flow"_L1, checkFlow},
};

} // namespace

VectorCheck vectorCheck(const QString& kind) {
    const auto found = std::ranges::find(kinds, kind, &VectorKind::name);
    return found == kinds.end() ? nullptr : found->check;
}

bool holds(const VectorRow& row, const Comparison& comparison) {
    if (comparison.actual == comparison.expected)
        return true;
    return row.fields().value("status"_L1) == "data-dependent"_L1 &&
           comparison.actual == row.value("icu72");
}

} // namespace quorvane
