// SPDX-License-Identifier: MIT
#include "support/PrivateDisplay.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstdio>

namespace {

// Nothing of the session in which the tests run may show through.
void enterPrivateSession(const QTemporaryDir& home, const QByteArray& display) {
    const auto folder = home.path().toLocal8Bit();
    for (const auto* variable :
         {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        qputenv(variable, folder);
    qputenv("DISPLAY", display);
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    for (const auto* variable :
         {"WAYLAND_DISPLAY", "QT_IM_MODULE", "XMODIFIERS", "SESSION_MANAGER"})
        qunsetenv(variable);
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    const quorvane::PrivateDisplay display;
    if (display.name().isEmpty()) {
        std::fputs("Xvfb did not start\n", stderr);
        return 1;
    }
    enterPrivateSession(home, display.name());
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
