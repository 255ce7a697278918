// SPDX-License-Identifier: MIT
#include <loop/CoalescedRefresh.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

#include <optional>

namespace quorvane {
namespace {

class CoalescedRefreshTest : public testing::Test {
protected:
    VirtualMainQueue m_queue;
    int m_count = 0;
};

TEST_F(CoalescedRefreshTest, ABurstLeadsToOneRefreshLater) {
    CoalescedRefresh refresh(m_queue, [this] { ++m_count; });
    refresh.schedule();
    refresh.schedule();
    refresh.schedule();
    EXPECT_EQ(m_count, 0);
    m_queue.run();
    EXPECT_EQ(m_count, 1);
    m_queue.run();
    EXPECT_EQ(m_count, 1);
}

TEST_F(CoalescedRefreshTest, EachBurstHasItsOwn) {
    CoalescedRefresh refresh(m_queue, [this] { ++m_count; });
    refresh.schedule();
    m_queue.run();
    refresh.schedule();
    m_queue.run();
    EXPECT_EQ(m_count, 2);
}

TEST_F(CoalescedRefreshTest, WhatTheRefreshSchedulesComesAfterIt) {
    CoalescedRefresh refresh(m_queue, [this, &refresh] {
        if (++m_count == 1)
            refresh.schedule();
        EXPECT_LE(m_count, 2);
    });
    refresh.schedule();
    m_queue.run();
    EXPECT_EQ(m_count, 2);
}

TEST_F(CoalescedRefreshTest, ARefreshAtOnceStandsForTheOneThatIsDue) {
    CoalescedRefresh refresh(m_queue, [this] { ++m_count; });
    refresh.schedule();
    refresh.refreshNow();
    EXPECT_EQ(m_count, 1);
    m_queue.run();
    EXPECT_EQ(m_count, 1);
    refresh.schedule();
    m_queue.run();
    EXPECT_EQ(m_count, 2);
}

TEST_F(CoalescedRefreshTest, DestroyedBeforeItsIterationItDoesNothing) {
    std::optional<CoalescedRefresh> refresh;
    refresh.emplace(m_queue, [this] { ++m_count; });
    refresh->schedule();
    refresh.reset();
    m_queue.run();
    EXPECT_EQ(m_count, 0);
}

TEST_F(CoalescedRefreshTest, RefreshMayDestroyIt) {
    std::optional<CoalescedRefresh> refresh;
    refresh.emplace(m_queue, [&] {
        refresh.reset();
        ++m_count;
    });
    refresh->schedule();
    m_queue.run();
    EXPECT_EQ(m_count, 1);
}

} // namespace
} // namespace quorvane
