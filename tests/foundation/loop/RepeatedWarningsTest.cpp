// SPDX-License-Identifier: MIT
#include <loop/RepeatedWarnings.h>
#include <testing/CapturedLog.h>

#include <QLoggingCategory>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <thread>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class RepeatedWarningsTest : public testing::Test {
protected:
    RepeatedWarningsTest() { writeRepeatedWarningsOnce(); }

    CapturedLog log{u"test.repeated"_s}; ///< writes, and puts the handler of before back in the end
    QLoggingCategory category{"test.repeated"};
};

TEST_F(RepeatedWarningsTest, OneThatComesTwiceInARowIsWrittenOnce) {
    qCWarning(category, "it has gone");
    qCWarning(category, "it has gone");
    qCWarning(category, "it is back");
    qCWarning(category, "it has gone");
    EXPECT_THAT(log.lines(), ElementsAre(u"it has gone"_s, u"it is back"_s, u"it has gone"_s));
}

TEST_F(RepeatedWarningsTest, WhoeverAsksHearsOfEachTime) {
    qCDebug(category, "again");
    qCDebug(category, "again");
    qCInfo(category, "again");
    EXPECT_EQ(log.lines().size(), 3);
}

TEST_F(RepeatedWarningsTest, ThreadsTellItOnceTogether) {
    {
        std::array<std::jthread, 8> threads;
        for (auto& thread : threads)
            thread = std::jthread([this] { qCWarning(category, "the connection broke"); });
    }
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(RepeatedWarningsTest, MayBeAskedForAgain) {
    writeRepeatedWarningsOnce();
    qCWarning(category, "said");
    EXPECT_THAT(log.lines(), ElementsAre(u"said"_s));
}

} // namespace
} // namespace quorvane
