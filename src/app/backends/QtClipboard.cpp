// SPDX-License-Identifier: MIT
#include "QtClipboard.h"

#include <platform_qt/QtPasteboard.h>

#include <QCoreApplication>

namespace quorvane {

std::unique_ptr<Pasteboard> makeQtClipboard(const DesktopSession& session) {
    // A compositor serves the clipboard to the program that has the keyboard.
    const auto access =
        session.isQtOnWayland() ? QtPasteboard::Access::WithFocus : QtPasteboard::Access::Always;
    return std::make_unique<QtPasteboard>(session.queue, access);
}

QString explanationOfQtClipboard() {
    return QCoreApplication::translate(
        "Backends",
        "Copy works while a window of Quorvane has the keyboard. What the clipboard held before "
        "an Insert cannot be given back.");
}

} // namespace quorvane
