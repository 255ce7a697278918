// SPDX-License-Identifier: MIT
#include <platform_portal/RestoreToken.h>
#include <testing/MemoryDefaults.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(RestoreToken, IsKeptUntilItIsReplaced) {
    MemoryDefaults defaults;
    RestoreToken token(defaults);
    EXPECT_EQ(token.current(), QString());
    token.replace(u"one"_s);
    EXPECT_EQ(RestoreToken(defaults).current(), u"one"_s);
    token.replace({});
    EXPECT_EQ(token.current(), QString());
}

TEST(RestoreToken, StoresNothingWhereThereWasAndIsNone) {
    MemoryDefaults defaults;
    RestoreToken(defaults).replace({});
    EXPECT_TRUE(defaults.writes().empty());
}

TEST(RestoreToken, OneThatIsTooLongIsNone) {
    MemoryDefaults defaults;
    RestoreToken token(defaults);
    token.replace(QString(RestoreToken::greatestLength, u'x'));
    EXPECT_EQ(token.current().size(), RestoreToken::greatestLength);
    token.replace(QString(RestoreToken::greatestLength + 1, u'x'));
    EXPECT_EQ(token.current(), QString());
}

} // namespace
} // namespace quorvane
