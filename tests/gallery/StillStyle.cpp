// SPDX-License-Identifier: MIT
#include "StillStyle.h"

namespace quorvane {

StillStyle::StillStyle() : QProxyStyle(QStringLiteral("fusion")) {
}

int StillStyle::styleHint(
    StyleHint hint,
    const QStyleOption* option,
    const QWidget* widget,
    QStyleHintReturn* returnData) const {
    return hint == SH_Widget_Animation_Duration
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, returnData);
}

} // namespace quorvane
