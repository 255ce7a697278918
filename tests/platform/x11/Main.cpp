// SPDX-License-Identifier: MIT
#include "support/PrivateDisplay.h"

#include <support/TestSession.h>

#include <QApplication>
#include <gmock/gmock.h>

#include <cstdio>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    const quorvane::TestSession session;
    const quorvane::PrivateDisplay display;
    if (display.name().isEmpty()) {
        std::fputs("Xvfb did not start\n", stderr);
        return 1;
    }
    qputenv("DISPLAY", display.name());
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Window managers find their themes in the system's folders.
    qunsetenv("XDG_DATA_DIRS");
    qunsetenv("XDG_CONFIG_DIRS");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
