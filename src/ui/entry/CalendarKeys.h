// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>
#include <time/UserLocale.h>

#include <QtGlobal>

#include <optional>

class QKeyEvent;

namespace quorvane {

/// Whether the key press moves about in a calendar: an arrow, Page Up or Down, Home or End, without
/// modifiers; Page Up or Down with Shift.
[[nodiscard]] bool isCalendarKey(const QKeyEvent& event);

/// The day that such a key leads to. Left and Right go where one sees the neighbour in that
/// direction of layout, Page Up and Down by a month, with Shift by a year, Home and End to the ends
/// of the week. None for other keys.
[[nodiscard]] std::optional<CivilDay> dayAfterKey(
    CivilDay day, const QKeyEvent& event, Qt::LayoutDirection direction, const UserLocale& locale);

/// Whether the key press writes something, or pastes; a space does not begin a text.
[[nodiscard]] bool beginsTyping(const QKeyEvent& event);

/// Return or Enter, without modifiers.
[[nodiscard]] bool isReturn(const QKeyEvent& event);

} // namespace quorvane
