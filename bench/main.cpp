// SPDX-License-Identifier: MIT
#include <QApplication>
#include <benchmark/benchmark.h>

// Widgets are painted into pictures; what a display adds is measured on one.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
