// SPDX-License-Identifier: MIT
#include <support/TestSession.h>

#include <QGuiApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    const quorvane::TestSession session;
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
