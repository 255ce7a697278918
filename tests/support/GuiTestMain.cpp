// SPDX-License-Identifier: MIT
#include <support/TestSession.h>

#include <QApplication>
#include <gmock/gmock.h>

// Widgets are real but shown nowhere: what needs a desktop is tested on one.
int main(int argc, char** argv) {
    const quorvane::TestSession session;
    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
