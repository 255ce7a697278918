// SPDX-License-Identifier: MIT
#include <loop/DeadlineSet.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

class DeadlineSetTest : public testing::Test {
protected:
    VirtualMainQueue m_queue;
    std::vector<int> m_ran;
};

TEST_F(DeadlineSetTest, RunsEachTaskAtItsTimeAndDropsIt) {
    DeadlineSet deadlines;
    deadlines.run(m_queue, 2s, [this] { m_ran.push_back(2); });
    deadlines.run(m_queue, 1s, [this] { m_ran.push_back(1); });
    m_queue.advance(1s);
    EXPECT_EQ(m_ran, std::vector{1});
    EXPECT_FALSE(deadlines.isEmpty());
    m_queue.advance(1s);
    EXPECT_EQ(m_ran, (std::vector{1, 2}));
    EXPECT_TRUE(deadlines.isEmpty());
}

TEST_F(DeadlineSetTest, CancelAllLeavesNothingPending) {
    DeadlineSet deadlines;
    deadlines.run(m_queue, 1s, [this] { m_ran.push_back(1); });
    deadlines.run(m_queue, 2s, [this] { m_ran.push_back(2); });
    deadlines.cancelAll();
    EXPECT_TRUE(m_queue.isIdle());
    m_queue.advance(3s);
    EXPECT_TRUE(m_ran.empty());
}

TEST_F(DeadlineSetTest, DestroyingTheSetCancels) {
    {
        DeadlineSet deadlines;
        deadlines.run(m_queue, 1s, [this] { m_ran.push_back(1); });
    }
    EXPECT_TRUE(m_queue.isIdle());
}

TEST_F(DeadlineSetTest, TaskMayAddToTheSet) {
    DeadlineSet deadlines;
    deadlines.run(m_queue, 1s, [&] {
        m_ran.push_back(1);
        deadlines.run(m_queue, 1s, [this] { m_ran.push_back(2); });
    });
    m_queue.advance(2s);
    EXPECT_EQ(m_ran, (std::vector{1, 2}));
}

TEST_F(DeadlineSetTest, TaskMayDestroyTheSet) {
    auto deadlines = std::make_unique<DeadlineSet>();
    deadlines->run(m_queue, 1s, [&] {
        deadlines.reset();
        m_ran.push_back(1);
    });
    deadlines->run(m_queue, 2s, [this] { m_ran.push_back(2); });
    m_queue.advance(3s);
    EXPECT_EQ(m_ran, std::vector{1});
}

} // namespace
} // namespace quorvane
