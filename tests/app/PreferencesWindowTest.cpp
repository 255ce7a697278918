// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class PreferencesWindowTest : public DelegateFixture {};

TEST_F(PreferencesWindowTest, OpensAtItsSizeAndKeepsItsWidth) {
    launch();
    delegate->performAction(u"preferences"_s);
    ASSERT_TRUE(isShown(preferences()));
    EXPECT_EQ(preferences()->size(), QSize(400, 540));
    preferences()->resize(600, 640);
    EXPECT_EQ(preferences()->size(), QSize(400, 640));
}

TEST_F(PreferencesWindowTest, IsNamedAndLeavesTheProgramRunning) {
    launch();
    delegate->performAction(u"preferences"_s);
    ASSERT_TRUE(isShown(preferences()));
    EXPECT_EQ(preferences()->windowTitle(), u"Quorvane Preferences"_s);
    EXPECT_FALSE(preferences()->testAttribute(Qt::WA_QuitOnClose));
}

} // namespace
} // namespace quorvane
