// SPDX-License-Identifier: MIT
#include <platform/LayeredAppearance.h>
#include <testing/FakeAppearance.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Scheme = DesktopAppearance::Scheme;

class LayeredAppearanceTest : public testing::Test {
protected:
    LayeredAppearanceTest() {
        auto upper = std::make_unique<FakeAppearance>();
        auto lower = std::make_unique<FakeAppearance>();
        portal = upper.get();
        files = lower.get();
        LayeredAppearance::Sources sources;
        sources.push_back(std::move(upper));
        sources.push_back(std::move(lower));
        appearance = std::make_unique<LayeredAppearance>(std::move(sources));
        appearance->onChanged([this] { ++changes; });
    }

    FakeAppearance* portal = nullptr;
    FakeAppearance* files = nullptr;
    std::unique_ptr<LayeredAppearance> appearance;
    int changes = 0;
};

TEST_F(LayeredAppearanceTest, EachPartIsWhatTheFirstSourceSaysThatSaysAnything) {
    files->change({.scheme = Scheme::Dark, .font = DesktopAppearance::Font{u"Sans"_s, 10}});
    EXPECT_EQ(appearance->current().scheme, Scheme::Dark);
    portal->change({.scheme = Scheme::Light});
    EXPECT_EQ(appearance->current().scheme, Scheme::Light);
    EXPECT_EQ(appearance->current().font, (DesktopAppearance::Font{u"Sans"_s, 10}));
    portal->change({});
    EXPECT_EQ(appearance->current().scheme, Scheme::Dark);
    EXPECT_EQ(changes, 3);
}

TEST_F(LayeredAppearanceTest, AnySourceMayAskForContrastOrForRest) {
    files->change({.wantsMoreContrast = true});
    portal->change({.wantsLessMotion = true});
    EXPECT_TRUE(appearance->current().wantsMoreContrast);
    EXPECT_TRUE(appearance->current().wantsLessMotion);
}

TEST_F(LayeredAppearanceTest, WhatMakesNoDifferenceIsNotTold) {
    portal->change({.scheme = Scheme::Dark});
    files->change({.scheme = Scheme::Light});
    EXPECT_EQ(changes, 1);
}

TEST_F(LayeredAppearanceTest, AllSourcesAreRead) {
    appearance->read();
    EXPECT_EQ(portal->reads(), 1);
    EXPECT_EQ(files->reads(), 1);
}

} // namespace
} // namespace quorvane
