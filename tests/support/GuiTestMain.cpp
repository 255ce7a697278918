// SPDX-License-Identifier: MIT
#include <QApplication>
#include <gtest/gtest.h>

// Widgets are real but shown nowhere: what needs a desktop is tested on one.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
