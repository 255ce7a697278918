// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

#include <algorithm>
#include <ctime>
#include <vector>

namespace quorvane {

/// Presses a key and lets it go.
inline void sendKey(QWidget& receiver, int key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&receiver, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&receiver, &release);
}

/// The time that this thread has had on the processor, in milliseconds. Unlike that of a clock on
/// the wall it has nothing of what else the machine does, which decides the slowest of many
/// samples.
[[nodiscard]] inline double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// What 99 of 100 samples do not exceed; 0 of none.
[[nodiscard]] inline double percentile99(std::vector<double> samples) {
    std::ranges::sort(samples);
    return samples.empty() ? 0 : samples[(samples.size() * 99 - 1) / 100];
}

} // namespace quorvane
