// SPDX-License-Identifier: MIT
#include <loop/QtMainQueue.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

class QtMainQueueTest : public testing::Test {
protected:
    /// Runs the loop until `delay` has passed on the same queue as the tasks under test.
    void runFor(Seconds delay) {
        const auto end = m_end.after(delay, [] { QCoreApplication::quit(); });
        QCoreApplication::exec();
    }

    QtMainQueue m_queue;
    std::vector<std::string> m_events;

private:
    QtMainQueue m_end;
};

TEST_F(QtMainQueueTest, AsyncRunsInALaterIterationInOrder) {
    m_queue.async([this] {
        m_events.push_back("first");
        m_queue.async([this] {
            m_events.push_back("third");
            QCoreApplication::quit();
        });
    });
    m_queue.async([this] { m_events.push_back("second"); });
    EXPECT_TRUE(m_events.empty());
    QCoreApplication::exec();
    EXPECT_EQ(m_events, (std::vector<std::string>{"first", "second", "third"}));
}

TEST_F(QtMainQueueTest, AfterRunsOnceAndNotEarlier) {
    QElapsedTimer timer;
    timer.start();
    std::vector<qint64> times;
    const auto deadline = m_queue.after(30ms, [&] { times.push_back(timer.elapsed()); });
    runFor(100ms);
    ASSERT_EQ(times.size(), 1U);
    EXPECT_GE(times.front(), 30);
}

TEST_F(QtMainQueueTest, DeadlinesRunInTheOrderOfTheirTimes) {
    const auto late = m_queue.after(40ms, [this] { m_events.push_back("late"); });
    const auto early = m_queue.after(10ms, [this] { m_events.push_back("early"); });
    const auto past = m_queue.after(-1s, [this] { m_events.push_back("past"); });
    runFor(80ms);
    EXPECT_EQ(m_events, (std::vector<std::string>{"past", "early", "late"}));
}

TEST_F(QtMainQueueTest, DroppedHandleCancels) {
    {
        const auto deadline = m_queue.after(10ms, [this] { m_events.push_back("cancelled"); });
    }
    auto replaced = m_queue.after(10ms, [this] { m_events.push_back("replaced"); });
    replaced = m_queue.after(20ms, [this] { m_events.push_back("replacement"); });
    runFor(60ms);
    EXPECT_EQ(m_events, std::vector<std::string>{"replacement"});
}

TEST_F(QtMainQueueTest, TaskMayDropItsOwnHandle) {
    std::optional<Deadline> deadline;
    const auto marker = std::make_shared<std::string>("kept by the task");
    deadline = m_queue.after(10ms, [this, &deadline, marker] {
        deadline.reset();
        m_events.push_back(*marker);
    });
    runFor(40ms);
    EXPECT_EQ(m_events, std::vector<std::string>{"kept by the task"});
}

TEST_F(QtMainQueueTest, HandlesOutliveTheirQueue) {
    auto queue = std::make_unique<QtMainQueue>();
    auto deadline = queue->after(10ms, [this] { m_events.push_back("after"); });
    queue->async([this] { m_events.push_back("async"); });
    queue.reset();
    runFor(40ms);
    deadline.cancel();
    EXPECT_TRUE(m_events.empty());
}

TEST_F(QtMainQueueTest, TaskMayDestroyTheQueue) {
    auto queue = std::make_unique<QtMainQueue>();
    const auto deadline = queue->after(10ms, [&] {
        queue.reset();
        m_events.push_back("ran");
    });
    runFor(40ms);
    EXPECT_EQ(m_events, std::vector<std::string>{"ran"});
}

} // namespace
} // namespace quorvane
