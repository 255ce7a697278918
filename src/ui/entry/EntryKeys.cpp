// SPDX-License-Identifier: MIT
#include "EntryKeys.h"

#include <platform/KeyCodes.h>

#include <QKeyEvent>

namespace quorvane {

namespace {

Qt::Key meaningOfPosition(std::uint32_t keyCode) {
    switch (keyCode) {
    case keycode::tab:
        return Qt::Key_Tab;
    case keycode::returnKey:
        return Qt::Key_Return;
    case keycode::leftArrow:
        return Qt::Key_Left;
    case keycode::rightArrow:
        return Qt::Key_Right;
    case keycode::downArrow:
        return Qt::Key_Down;
    case keycode::upArrow:
        return Qt::Key_Up;
    default:
        return Qt::Key_unknown;
    }
}

} // namespace

Qt::Key meaningOf(const QKeyEvent& event) {
    if (event.key() != 0 && event.key() != Qt::Key_unknown)
        return static_cast<Qt::Key>(event.key());
    const auto keyCode = keyCodeFromScanCode(event.nativeScanCode());
    return keyCode ? meaningOfPosition(*keyCode) : Qt::Key_unknown;
}

} // namespace quorvane
