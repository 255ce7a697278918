// SPDX-License-Identifier: MIT
#pragma once

#include <loop/SlicedWork.h>
#include <time/UserLocale.h>
#include <time/ZoneDatabase.h>

namespace quorvane {

/// Asks once, in small slices, for all that the first list of zones will ask for, so that it opens
/// without waiting for the disk. Nothing is kept here: the answers stay in the caches of the system
/// and of ICU. To be made after the first paint; destroying it drops what is left.
class ZoneWarmUp {
public:
    /// `queue` and `database` must outlive it.
    ZoneWarmUp(
        MainQueue& queue,
        const ZoneDatabase& database,
        Instant now,
        const UserLocale& locale,
        SlicedWork::SteadyTime time = std::chrono::steady_clock::now);

private:
    SlicedWork m_work;
};

} // namespace quorvane
