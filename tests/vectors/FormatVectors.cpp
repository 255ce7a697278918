// SPDX-License-Identifier: MIT
#include "PresetNames.h"
#include "VectorKinds.h"

#include <composition/FormatSingle.h>
#include <time/DateText.h>

namespace quorvane {

using namespace Qt::StringLiterals;

Comparison checkFormat(const VectorRow& row) {
    const FormatSettings settings{
        row.flag("includeDate"), row.flag("includeTime"), {}, row.locale()};
    return {
        row.text("expected"),
        formatSingle(row.instant("t"), row.zone("tz"), presetIn(row, "preset"), settings)};
}

Comparison checkCustomFormat(const VectorRow& row) {
    const FormatSettings settings{true, true, row.text("pattern"), row.locale()};
    return {
        row.text("expected"),
        formatSingle(row.instant("t"), row.zone("tz"), DateFormatPreset::Custom, settings)};
}

Comparison checkChip(const VectorRow& row) {
    const auto chip = row.text("chip");
    if (chip != "time"_L1 && chip != "date"_L1)
        throw MalformedRow("no such chip: " + chip.toStdString());
    const auto text = chip == "time"_L1 ? timeChipText : dateChipText;
    return {row.text("expected"), text(row.instant("t"), row.zone("tz"), row.locale())};
}

} // namespace quorvane
