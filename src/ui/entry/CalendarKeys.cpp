// SPDX-License-Identifier: MIT
#include "CalendarKeys.h"

#include <time/CalendarMoves.h>

#include <QKeyEvent>

namespace quorvane {

using std::chrono::days;

bool isCalendarKey(const QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
    }
}

std::optional<CivilDay> dayAfterKey(
    CivilDay day, const QKeyEvent& event, Qt::LayoutDirection direction, const UserLocale& locale) {
    if (!isCalendarKey(event))
        return std::nullopt;
    const days rightwards(direction == Qt::RightToLeft ? -1 : 1);
    switch (event.key()) {
    case Qt::Key_Left:
        return day - rightwards;
    case Qt::Key_Right:
        return day + rightwards;
    case Qt::Key_Up:
        return day - days(7);
    case Qt::Key_Down:
        return day + days(7);
    case Qt::Key_PageUp:
        return movedByMonths(day, -1, locale);
    case Qt::Key_PageDown:
        return movedByMonths(day, 1, locale);
    case Qt::Key_Home:
        return startOfWeek(day, locale);
    default:
        return endOfWeek(day, locale);
    }
}

} // namespace quorvane
