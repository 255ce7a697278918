// SPDX-License-Identifier: MIT
#pragma once

#include <support/TestSession.h>

#include <QCoreApplication>

namespace quorvane {

/// The session and the application of a target that needs an event loop, made at the first call.
inline void makeFuzzSession() {
    static const TestSession session;
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static const QCoreApplication application(count, arguments);
}

} // namespace quorvane
