// SPDX-License-Identifier: MIT
#include <time/Iso8601Options.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr auto timeOfDay = iso8601::time | iso8601::colonSeparatorInTime | iso8601::timeZone;

TEST(Iso8601Options, HaveThePublishedBits) {
    EXPECT_EQ(iso8601::internetDateTime.bits, 1907U);
    EXPECT_EQ(iso8601::fullDate.bits, 275U);
    EXPECT_EQ(timeOfDay.bits, 608U);
}

TEST(Iso8601Options, PatternHasThePartsThatAreSet) {
    EXPECT_EQ(iso8601Pattern(iso8601::internetDateTime), u"yyyy-MM-dd'T'HH:mm:ssXXXXX"_s);
    EXPECT_EQ(iso8601Pattern(timeOfDay), u"HH:mm:ssXXXX"_s);
    EXPECT_EQ(iso8601Pattern(iso8601::fullDate), u"yyyy-MM-dd"_s);
    EXPECT_EQ(
        iso8601Pattern(iso8601::year | iso8601::month | iso8601::day | iso8601::time),
        u"yyyyMMdd'T'HHmmss"_s);
    EXPECT_EQ(iso8601Pattern({}), QString());
}

} // namespace
} // namespace quorvane
