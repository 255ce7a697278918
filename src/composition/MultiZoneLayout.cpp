// SPDX-License-Identifier: MIT
#include <composition/MultiZoneLayout.h>
#include <composition/RawTexts.h>

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
