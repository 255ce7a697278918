// SPDX-License-Identifier: MIT
#include <panel/SparkleUpdater.h>

namespace quorvane {

SparkleUpdater& SparkleUpdater::shared() {
    static SparkleUpdater updater;
    return updater;
}

} // namespace quorvane
