// SPDX-License-Identifier: MIT
#pragma once

#include <panel/UpdaterController.h>

namespace quorvane {

/// Owns the one controller of updates, which every menu asks.
class SparkleUpdater final {
public:
    /// Made at its first use.
    [[nodiscard]] static SparkleUpdater& shared();

    [[nodiscard]] UpdaterController& controller() { return m_controller; }

private:
    SparkleUpdater() = default;

    UpdaterController m_controller;
};

} // namespace quorvane
