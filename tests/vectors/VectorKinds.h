// SPDX-License-Identifier: MIT
#pragma once

#include "VectorRow.h"

#include <QJsonValue>

namespace quorvane {

/// What a row expects, and what this program gives for it.
struct Comparison {
    QJsonValue expected;
    QJsonValue actual;
};

/// Computes one row of a kind.
using VectorCheck = Comparison (*)(const VectorRow& row);

/// The check for files of that kind; null for an unknown kind.
[[nodiscard]] VectorCheck vectorCheck(const QString& kind);

/// Whether the row holds. Where the oracle's locale data are newer than ICU's ("data-dependent"),
/// the text that ICU's own data give is right as well.
[[nodiscard]] bool holds(const VectorRow& row, const Comparison& comparison);

// One function per kind of file.
[[nodiscard]] Comparison checkPreset(const VectorRow& row);
[[nodiscard]] Comparison checkFormat(const VectorRow& row);
[[nodiscard]] Comparison checkCustomFormat(const VectorRow& row);
[[nodiscard]] Comparison checkChip(const VectorRow& row);
[[nodiscard]] Comparison checkComposition(const VectorRow& row);
[[nodiscard]] Comparison checkAvailablePresets(const VectorRow& row);
[[nodiscard]] Comparison checkSlots(const VectorRow& row);
[[nodiscard]] Comparison checkIncludeGuard(const VectorRow& row);
[[nodiscard]] Comparison checkDefaultFavorites(const VectorRow& row);
[[nodiscard]] Comparison checkNumberText(const VectorRow& row);
[[nodiscard]] Comparison checkTimeStep(const VectorRow& row);
[[nodiscard]] Comparison checkTimeEntry(const VectorRow& row);
[[nodiscard]] Comparison checkHotKeyFlags(const VectorRow& row);
[[nodiscard]] Comparison checkHotKeyDisplay(const VectorRow& row);
[[nodiscard]] Comparison checkHotKeyLoad(const VectorRow& row);
[[nodiscard]] Comparison checkHotKeyKeyChar(const VectorRow& row);
[[nodiscard]] Comparison checkUniverse(const VectorRow& row);
[[nodiscard]] Comparison checkAlias(const VectorRow& row);
[[nodiscard]] Comparison checkSearch(const VectorRow& row);
[[nodiscard]] Comparison checkStarred(const VectorRow& row);
[[nodiscard]] Comparison checkCatalogueSort(const VectorRow& row);
[[nodiscard]] Comparison checkOffsetText(const VectorRow& row);
[[nodiscard]] Comparison checkLabel(const VectorRow& row);
[[nodiscard]] Comparison checkLabelByZone(const VectorRow& row);
[[nodiscard]] Comparison checkToggle(const VectorRow& row);
[[nodiscard]] Comparison checkFlow(const VectorRow& row);

} // namespace quorvane
