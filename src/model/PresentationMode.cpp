// SPDX-License-Identifier: MIT
#include <composition/RawTexts.h>
#include <model/PresentationMode.h>

namespace quorvane {

namespace {

constexpr RawTexts<PresentationMode, allPresentationModes.size()> rawTexts{{
    {PresentationMode::Popover, u"Popover"},
    {PresentationMode::Window, u"Window"},
}};

} // namespace

QString rawValue(PresentationMode mode) {
    return textOf(rawTexts, mode);
}

std::optional<PresentationMode> presentationMode(QStringView rawValue) {
    return caseOf(rawTexts, rawValue);
}

} // namespace quorvane
