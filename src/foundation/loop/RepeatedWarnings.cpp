// SPDX-License-Identifier: MIT
#include <loop/RepeatedWarnings.h>

#include <QString>

#include <mutex>
#include <utility>

namespace quorvane {

namespace {

struct Warnings {
    std::mutex mutex;
    QString last;
    QtMessageHandler writer = nullptr;
};

/// Never destroyed: a thread may have something to say while the process ends.
Warnings& warnings() {
    static auto& kept = *new Warnings;
    return kept;
}

void write(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    auto& [mutex, last, writer] = warnings();
    const std::scoped_lock lock(mutex);
    const bool isForWhoeverAsks = type == QtDebugMsg || type == QtInfoMsg;
    if (isForWhoeverAsks || std::exchange(last, text) != text)
        writer(type, context, text);
}

} // namespace

void writeRepeatedWarningsOnce() {
    const auto before = qInstallMessageHandler(write);
    if (before != write)
        warnings().writer = before;
}

} // namespace quorvane
