// SPDX-License-Identifier: MIT
#include "Zones.h"

#include <testing/VirtualMainQueue.h>
#include <timezones/ZoneWarmUp.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using std::chrono::steady_clock;

class ZoneWarmUpTest : public testing::Test {
protected:
    /// Has `step` pass between any two looks at it, and counts them.
    SlicedWork::SteadyTime clockWith(std::chrono::milliseconds step) {
        return [this, step] {
            return steady_clock::time_point(step * m_looks++);
        };
    }

    VirtualMainQueue m_queue;
    ZoneDatabase m_zones;
    int m_looks = 0;
};

TEST_F(ZoneWarmUpTest, DoesNothingBeforeItsIteration) {
    const ZoneWarmUp warmUp(
        m_queue, m_zones, winter, locale("en_US"), clockWith(std::chrono::milliseconds(1)));
    EXPECT_EQ(m_looks, 0);
    EXPECT_FALSE(m_queue.isIdle());
}

TEST_F(ZoneWarmUpTest, AsksForEveryZoneOnceAndEnds) {
    const ZoneWarmUp warmUp(
        m_queue, m_zones, winter, locale("en_US"), clockWith(SlicedWork::sliceLength));
    m_queue.run();
    EXPECT_TRUE(m_queue.isIdle());
    // Every zone is a slice of its own by this clock, and so is finding that there is no further.
    const auto slices = m_zones.zonesByCountry().size() + 1;
    EXPECT_EQ(m_looks, 2 * slices - 1);
}

TEST_F(ZoneWarmUpTest, WithoutATableItEndsAtOnce) {
    const ZoneDatabase none(QStringLiteral("/nonexistent"));
    const ZoneWarmUp warmUp(
        m_queue, none, winter, locale("en_US"), clockWith(std::chrono::milliseconds(1)));
    m_queue.run();
    EXPECT_TRUE(m_queue.isIdle());
    EXPECT_EQ(m_looks, 1);
}

} // namespace
} // namespace quorvane
