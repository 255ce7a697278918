// SPDX-License-Identifier: MIT
#include <platform_offers/PipeWriting.h>
#include <testing/SteppedMainQueue.h>

#include <QByteArray>
#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <fcntl.h>
#include <optional>
#include <thread>
#include <unistd.h>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

constexpr qsizetype threeMegabytes = 3'145'728;

/// Another program at the end of a pipe that holds 4 KiB, the least there is.
class PipeWritingTest : public testing::Test {
protected:
    PipeWritingTest() {
        EXPECT_EQ(::pipe2(m_ends.data(), O_CLOEXEC), 0);
        EXPECT_EQ(::fcntl(m_ends[1], F_SETPIPE_SZ, 4096), 4096);
    }

    void write(const QByteArray& bytes) {
        m_writing.write(m_ends[1], bytes, [this](bool isWhole) {
            m_isWhole = isWhole;
            m_loop.quit();
        });
    }

    /// Nothing but the pipe wakes the event loop until the writing has ended; the limit is for
    /// failures alone.
    void waitForTheEnd() {
        if (m_isWhole)
            return;
        QTimer::singleShot(100s, &m_loop, &QEventLoop::quit);
        m_loop.exec();
    }

    /// Takes at most so much, in small pieces and its own time.
    QByteArray read(qsizetype most) {
        QByteArray taken;
        std::array<char, 1000> piece{};
        while (taken.size() < most) {
            const auto length = ::read(m_ends[0], piece.data(), piece.size());
            if (length <= 0)
                break;
            taken.append(piece.data(), length);
            std::this_thread::yield();
        }
        ::close(m_ends[0]);
        return taken;
    }

    std::array<int, 2> m_ends{};
    QEventLoop m_loop;
    SteppedMainQueue m_queue;
    PipeWriting m_writing{m_queue};
    std::optional<bool> m_isWhole;
};

QByteArray numbered(qsizetype size) {
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i % 251);
    return bytes;
}

TEST_F(PipeWritingTest, GivesEverythingToAReaderThatIsSlowerThanThePipe) {
    const auto bytes = numbered(threeMegabytes);
    QByteArray taken;
    std::thread reader([&] { taken = read(threeMegabytes + 1); });
    write(bytes);
    waitForTheEnd();
    EXPECT_EQ(m_isWhole, true);
    if (!m_isWhole)
        m_queue.advance(PipeWriting::longestSilence);
    reader.join();
    EXPECT_TRUE(taken == bytes);
}

TEST_F(PipeWritingTest, TellsWhereTheReaderHasHadEnough) {
    std::thread reader([&] { read(10'000); });
    write(numbered(threeMegabytes));
    waitForTheEnd();
    reader.join();
    EXPECT_EQ(m_isWhole, false);
    EXPECT_TRUE(m_writing.isIdle());
}

TEST_F(PipeWritingTest, GivesUpAReaderThatTakesNothing) {
    write(numbered(threeMegabytes));
    m_queue.advance(PipeWriting::longestSilence);
    EXPECT_EQ(m_isWhole, false);
    ::close(m_ends[0]);
}

TEST_F(PipeWritingTest, HasGivenAllOfNothingAtOnce) {
    write({});
    EXPECT_EQ(m_isWhole, true);
    EXPECT_EQ(read(1), QByteArray());
}

} // namespace
} // namespace quorvane
