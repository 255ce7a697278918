// SPDX-License-Identifier: MIT
// Qt 6.5 deprecates QApplication::setActiveWindow() in favour of a request to the desktop. That
// does nothing for a window that has the desktop's focus already, so the call is kept, here alone.
#undef QT_DISABLE_DEPRECATED_UP_TO
#define QT_DISABLE_DEPRECATED_UP_TO 0x060400
#define QT_WARN_DEPRECATED_UP_TO 0x060400

#include "WindowActivation.h"

#include <QApplication>

namespace quorvane {

void makeActive(QWidget& window) {
    QApplication::setActiveWindow(&window);
}

} // namespace quorvane
