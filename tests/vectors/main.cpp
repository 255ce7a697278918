// SPDX-License-Identifier: MIT
#include "VectorFile.h"

#include <support/TestSession.h>

#include <QCoreApplication>

#include <cstdlib>

int main(int argc, char* argv[]) {
    using namespace quorvane;

    const TestSession session;
    const QCoreApplication application(argc, argv);
    const auto paths = QCoreApplication::arguments().sliced(1);
    QTextStream out(stdout);
    if (paths.isEmpty()) {
        out << "usage: quorvane-vectors FILE...\n";
        return EXIT_FAILURE;
    }
    const ZoneDatabase zones;
    VectorCount total;
    for (const auto& path : paths)
        total += runVectorFile(path, zones, out);
    out << total.passed << " passed, " << total.failed << " failed\n";
    return total.failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
