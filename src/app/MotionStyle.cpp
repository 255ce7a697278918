// SPDX-License-Identifier: MIT
#include "MotionStyle.h"

namespace quorvane {

int MotionStyle::styleHint(
    StyleHint hint,
    const QStyleOption* option,
    const QWidget* widget,
    QStyleHintReturn* returned) const {
    if (m_motion == Motion::None && hint == SH_Widget_Animation_Duration)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace quorvane
