// SPDX-License-Identifier: MIT
#include <loop/Failure.h>

#include <cstdio>

namespace quorvane {

void reportFailure(const QString& what) {
    const auto line = "quorvane: " + what.simplified().toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

} // namespace quorvane
