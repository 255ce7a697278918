// SPDX-License-Identifier: MIT
#include <composition/CaseOf.h>
#include <composition/MultiZoneLayout.h>

#include <QCoreApplication>

namespace quorvane {

namespace {

struct Texts {
    QStringView rawValue;
    const char* label; ///< the source of its translations
};

Texts textsOf(MultiZoneLayout layout) {
    switch (layout) {
    case MultiZoneLayout::Inline:
        return {u"Inline", QT_TRANSLATE_NOOP("MultiZoneLayout", "Inline")};
    case MultiZoneLayout::Lines:
        return {u"Lines", QT_TRANSLATE_NOOP("MultiZoneLayout", "Lines")};
    }
    return {};
}

} // namespace

QString rawValue(MultiZoneLayout layout) {
    return textsOf(layout).rawValue.toString();
}

std::optional<MultiZoneLayout> multiZoneLayout(QStringView rawValue) {
    return caseOf(allMultiZoneLayouts, rawValue);
}

QString translatedLabel(MultiZoneLayout layout) {
    return QCoreApplication::translate("MultiZoneLayout", textsOf(layout).label);
}

} // namespace quorvane
