// SPDX-License-Identifier: MIT
#include "RawTexts.h"

#include <model/MultiZoneLayout.h>

namespace quorvane {

namespace {

constexpr RawTexts<MultiZoneLayout, allMultiZoneLayouts.size()> rawTexts{{
    {MultiZoneLayout::Inline, u"Inline"},
    {MultiZoneLayout::Lines, u"Lines"},
}};

} // namespace

QString rawValue(MultiZoneLayout layout) {
    return textOf(rawTexts, layout);
}

std::optional<MultiZoneLayout> multiZoneLayout(QStringView rawValue) {
    return caseOf(rawTexts, rawValue);
}

} // namespace quorvane
