// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(CommandLine, WithoutArgumentsTheInterfaceShows) {
    const auto line = CommandLine::parse({u"quorvane"_s});
    EXPECT_FALSE(line.isHidden);
    EXPECT_TRUE(line.unknown.isEmpty());
}

TEST(CommandLine, HiddenIsTheOneOption) {
    const auto line = CommandLine::parse({u"quorvane"_s, u"--hidden"_s});
    EXPECT_TRUE(line.isHidden);
    EXPECT_TRUE(line.unknown.isEmpty());
}

TEST(CommandLine, EverythingElseIsUnknown) {
    const auto line = CommandLine::parse(
        {u"quorvane"_s, u"--version"_s, u"--hidden"_s, u"file"_s, u"-h"_s, QString()});
    EXPECT_EQ(line.unknown, (QStringList{u"--version"_s, u"file"_s, u"-h"_s, QString()}));
}

} // namespace
} // namespace quorvane
