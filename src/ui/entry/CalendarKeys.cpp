// SPDX-License-Identifier: MIT
#include "CalendarKeys.h"

#include "EntryKeys.h"

#include <time/CalendarMoves.h>

#include <QKeyEvent>

namespace quorvane {

using std::chrono::days;

namespace {

bool isPageKey(Qt::Key key) {
    return key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

Qt::KeyboardModifiers modifiersOf(const QKeyEvent& event) {
    return event.modifiers() & ~Qt::KeypadModifier;
}

} // namespace

bool isCalendarKey(const QKeyEvent& event) {
    const auto key = meaningOf(event);
    if (modifiersOf(event) == Qt::ShiftModifier)
        return isPageKey(key);
    if (modifiersOf(event) != Qt::NoModifier)
        return false;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return isPageKey(key);
    }
}

std::optional<CivilDay> dayAfterKey(
    CivilDay day, const QKeyEvent& event, Qt::LayoutDirection direction, const UserLocale& locale) {
    if (!isCalendarKey(event))
        return std::nullopt;
    const days rightwards(direction == Qt::RightToLeft ? -1 : 1);
    const bool byYears = event.modifiers().testFlag(Qt::ShiftModifier);
    switch (meaningOf(event)) {
    case Qt::Key_Left:
        return day - rightwards;
    case Qt::Key_Right:
        return day + rightwards;
    case Qt::Key_Up:
        return day - days(7);
    case Qt::Key_Down:
        return day + days(7);
    case Qt::Key_PageUp:
        return byYears ? movedByYears(day, -1, locale) : movedByMonths(day, -1, locale);
    case Qt::Key_PageDown:
        return byYears ? movedByYears(day, 1, locale) : movedByMonths(day, 1, locale);
    case Qt::Key_Home:
        return startOfWeek(day, locale);
    default:
        return endOfWeek(day, locale);
    }
}

bool beginsTyping(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Paste))
        return true;
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const auto text = event.text();
    return (event.modifiers() & commands) == Qt::NoModifier && !text.isEmpty() &&
           text.front().isPrint() && !text.front().isSpace();
}

bool isReturn(const QKeyEvent& event) {
    const auto key = meaningOf(event);
    return modifiersOf(event) == Qt::NoModifier && (key == Qt::Key_Return || key == Qt::Key_Enter);
}

} // namespace quorvane
