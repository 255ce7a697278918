// SPDX-License-Identifier: MIT
#include "PresentationFixture.h"

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class DockPresenceTest : public PresentationFixture {};

TEST_F(DockPresenceTest, StoredDockIconMakesTheProgramRegular) {
    defaults.setBool(u"showInDock"_s, true);
    makeDelegate();
    launch();
    EXPECT_EQ(calls().front(), "policy regular");
}

TEST_F(DockPresenceTest, DockSwitchIsFollowedOnTheNextEventLoopIteration) {
    launch();
    queue.run();
    log.clear();
    delegate->model().setShowInDock(true);
    EXPECT_TRUE(calls().empty());
    queue.run();
    EXPECT_THAT(calls(), ElementsAre("policy regular", "activate panel", "orderFront panel"));
}

TEST_F(DockPresenceTest, DockSwitchLeavesPanelAndPreferencesInFront) {
    launchAs(PresentationMode::Window);
    delegate->showPreferences();
    pressShortcut();
    ASSERT_TRUE(isShown(preferences()));
    for (const bool visible : {true, false}) {
        log.clear();
        delegate->model().setShowInDock(visible);
        queue.run();
        if (visible)
            EXPECT_THAT(
                calls(),
                ElementsAre(
                    "policy regular",
                    "activate preferences",
                    "orderFront preferences",
                    "orderFront panel"));
        else
            EXPECT_THAT(
                calls(),
                ElementsAre("policy accessory", "orderFront preferences", "orderFront panel"));
    }
}

TEST_F(DockPresenceTest, DockSwitchWithNothingVisibleActivatesNothing) {
    launchAs(PresentationMode::Window);
    pressShortcut();
    log.clear();
    delegate->model().setShowInDock(true);
    queue.run();
    EXPECT_THAT(calls(), ElementsAre("policy regular"));
}

} // namespace
} // namespace quorvane
