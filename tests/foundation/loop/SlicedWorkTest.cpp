// SPDX-License-Identifier: MIT
#include <loop/SlicedWork.h>
#include <testing/VirtualMainQueue.h>

#include <gmock/gmock.h>

#include <optional>
#include <vector>

namespace quorvane {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using testing::ElementsAre;

class SlicedWorkTest : public testing::Test {
protected:
    /// Work of that many steps, each of which takes `length`.
    void start(int count, std::chrono::microseconds length) {
        const auto step = [this, count, length] {
            m_now += length;
            return ++m_steps < count;
        };
        m_work.emplace(m_queue, step, [this] { return m_now; });
    }

    /// How many steps had been taken after each of so many iterations of the event loop.
    std::vector<int> stepsAfterIterations(int iterations) {
        std::vector<int> steps;
        const std::function<void()> observe = [&] {
            steps.push_back(m_steps);
            if (std::ssize(steps) < iterations)
                m_queue.async(observe);
        };
        m_queue.async(observe);
        m_queue.run();
        return steps;
    }

    VirtualMainQueue m_queue;
    steady_clock::time_point m_now;
    int m_steps = 0;
    std::optional<SlicedWork> m_work;
};

TEST_F(SlicedWorkTest, NothingRunsBeforeTheFirstIteration) {
    start(3, 500us);
    EXPECT_EQ(m_steps, 0);
}

TEST_F(SlicedWorkTest, AnIterationEndsWithTheStepThatUsesUpItsTime) {
    start(9, 500us);
    EXPECT_THAT(stepsAfterIterations(4), ElementsAre(4, 8, 9, 9));
}

TEST_F(SlicedWorkTest, AStepThatTakesLongHasAnIterationOfItsOwn) {
    start(3, 7ms);
    EXPECT_THAT(stepsAfterIterations(4), ElementsAre(1, 2, 3, 3));
}

TEST_F(SlicedWorkTest, EndsWithItsLastStep) {
    start(2, 500us);
    m_queue.run();
    EXPECT_EQ(m_steps, 2);
    EXPECT_TRUE(m_queue.isIdle());
}

TEST_F(SlicedWorkTest, DestroyedBeforeItsFirstIterationItTakesNoStep) {
    start(9, 500us);
    m_work.reset();
    m_queue.run();
    EXPECT_EQ(m_steps, 0);
}

TEST_F(SlicedWorkTest, DestroyedBetweenIterationsItDropsTheRest) {
    start(9, 500us);
    m_queue.async([this] { m_work.reset(); });
    m_queue.run();
    EXPECT_EQ(m_steps, 4);
    EXPECT_TRUE(m_queue.isIdle());
}

} // namespace
} // namespace quorvane
