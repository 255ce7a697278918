// SPDX-License-Identifier: MIT
#include "PresetNames.h"
#include "VectorKinds.h"

#include <composition/ComposedOutput.h>
#include <testing/FixedCurrentZone.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

MultiZoneLayout layoutOf(const VectorRow& row) {
    const auto name = row.text("layout");
    if (name == "inline"_L1)
        return MultiZoneLayout::Inline;
    if (name == "lines"_L1)
        return MultiZoneLayout::Lines;
    throw MalformedRow("no such layout: " + name.toStdString());
}

} // namespace

Comparison checkComposition(const VectorRow& row) {
    const OutputRequest request{
        .preset = presetIn(row, "preset"),
        .settings =
            {row.flag("includeDate"),
             row.flag("includeTime"),
             row.text("customFormat"),
             row.locale()},
        .zones = row.zoneList("selected"),
        .start = row.instant("start"),
        .end = row.flag("isRange") ? std::optional(row.instant("end")) : std::nullopt,
        .layout = layoutOf(row)};
    return {row.text("expected"), composedOutput(request, FixedCurrentZone(row.zone("current")))};
}

} // namespace quorvane
