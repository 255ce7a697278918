// SPDX-License-Identifier: MIT
#include <composition/CaseOf.h>
#include <model/PresentationMode.h>

namespace quorvane {

using namespace Qt::StringLiterals;

QString rawValue(PresentationMode mode) {
    switch (mode) {
    case PresentationMode::Popover:
        return u"Popover"_s;
    case PresentationMode::Window:
        return u"Window"_s;
    }
    return {};
}

std::optional<PresentationMode> presentationMode(QStringView rawValue) {
    return caseOf(allPresentationModes, rawValue);
}

} // namespace quorvane
