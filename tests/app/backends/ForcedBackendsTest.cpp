// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <backends/ForcedBackends.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(ForcedBackends, LeaveEveryChoiceFreeWhereNothingIsAsked) {
    const auto forced = ForcedBackends::fromText({});
    EXPECT_EQ(forced.of(ChosenService::Clipboard), std::nullopt);
    EXPECT_EQ(forced.of(ChosenService::Panel), std::nullopt);
}

TEST(ForcedBackends, AreOneForAllServices) {
    const auto forced = ForcedBackends::fromText(u"x11"_s);
    EXPECT_EQ(forced.of(ChosenService::Clipboard), u"x11"_s);
    EXPECT_EQ(forced.of(ChosenService::Layout), u"x11"_s);
}

TEST(ForcedBackends, AreOneForEachServiceNamed) {
    const auto forced = ForcedBackends::fromText(u"clipboard=x11, keys=portal"_s);
    EXPECT_EQ(forced.of(ChosenService::Clipboard), u"x11"_s);
    EXPECT_EQ(forced.of(ChosenService::Keys), u"portal"_s);
    EXPECT_EQ(forced.of(ChosenService::Windows), std::nullopt);
}

TEST(ForcedBackends, CanBeOneForAllButSome) {
    const auto forced = ForcedBackends::fromText(u"null,shortcut=kde"_s);
    EXPECT_EQ(forced.of(ChosenService::Shortcut), u"kde"_s);
    EXPECT_EQ(forced.of(ChosenService::Keys), u"null"_s);
}

TEST(ForcedBackends, LeaveOutWhatIsNoService) {
    const auto forced = ForcedBackends::fromText(u"tray=x11"_s);
    EXPECT_EQ(forced.of(ChosenService::Clipboard), std::nullopt);
}

} // namespace
} // namespace quorvane
