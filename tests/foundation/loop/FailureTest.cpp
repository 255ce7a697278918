// SPDX-License-Identifier: MIT
#include <loop/Failure.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

std::string reportOf(const QString& what) {
    testing::internal::CaptureStderr();
    reportFailure(what);
    return testing::internal::GetCapturedStderr();
}

TEST(FailureTest, IsOneLineOnStandardError) {
    EXPECT_EQ(reportOf(u"cannot write ü.json"_s), "quorvane: cannot write ü.json\n");
}

TEST(FailureTest, BreaksInANameMakeNoSecondLine) {
    EXPECT_EQ(reportOf(u"cannot write a\nb\r\n\tc"_s), "quorvane: cannot write a b c\n");
}

} // namespace
} // namespace quorvane
