// SPDX-License-Identifier: MIT
#include <ui/SparkleUpdater.h>

namespace quorvane {

SparkleUpdater& SparkleUpdater::shared() {
    static SparkleUpdater updater;
    return updater;
}

} // namespace quorvane
