// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <QTest>
#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;

class HiddenStartTest : public DelegateFixture {
protected:
    HiddenStartTest() {
        statusBar->hasButton = false;
        taps->setHeldElsewhere(true);
    }

    void launchHidden() {
        delegate->applicationDidFinishLaunching(AppDelegate::Launch::Hidden);
        queue.run();
    }

    void waitAsLongAsItDoes() { queue.advance(HiddenStart::patience); }
};

TEST_F(HiddenStartTest, NothingShowsAndTheShortcutLeadsToThePanel) {
    taps->setHeldElsewhere(false);
    launchHidden();
    EXPECT_THAT(calls(), Contains("makeStatusItem"));
    waitAsLongAsItDoes();
    EXPECT_FALSE(isShown(panel()));
    pressShortcut();
    EXPECT_TRUE(isShown(panel()));
}

TEST_F(HiddenStartTest, IconIsEnough) {
    statusBar->hasButton = true;
    launchHidden();
    waitAsLongAsItDoes();
    EXPECT_FALSE(isShown(panel()));
}

TEST_F(HiddenStartTest, IconThatTheUserHasHiddenIsNot) {
    statusBar->hasButton = true;
    delegate->model().setShowInMenuBar(false);
    launchHidden();
    waitAsLongAsItDoes();
    EXPECT_TRUE(isShown(panel()));
}

TEST_F(HiddenStartTest, ShortcutInTheDesktopsOwnListIsEnough) {
    desktopShortcut->setBound(KeyChord{2, modifier::command});
    launchHidden();
    waitAsLongAsItDoes();
    EXPECT_FALSE(isShown(panel()));
}

TEST_F(HiddenStartTest, WithoutIconAndShortcutThePanelShowsAfterAll) {
    launchHidden();
    EXPECT_FALSE(isShown(panel()));
    waitAsLongAsItDoes();
    EXPECT_TRUE(isShown(panel()));
}

TEST_F(HiddenStartTest, BarMayComeLater) {
    launchHidden();
    statusBar->hasButton = true;
    waitAsLongAsItDoes();
    EXPECT_FALSE(isShown(panel()));
}

TEST_F(HiddenStartTest, WhoeverHasAskedForTheInterfaceKnowsAWayToIt) {
    for (const auto& action : {u"toggle"_s, u"preferences"_s, u"copy"_s}) {
        makeDelegate();
        statusBar->hasButton = false;
        taps->setHeldElsewhere(true);
        launchHidden();
        delegate->performAction(action);
        if (isShown(panel()))
            delegate->performAction(u"toggle"_s);
        waitAsLongAsItDoes();
        EXPECT_FALSE(isShown(panel())) << action.toStdString();
    }
}

TEST_F(HiddenStartTest, IconNeedNotWaitForAPaintToKnowTheDesktopsColours) {
    launchHidden();
    EXPECT_EQ(appearance->reads(), 1);
    EXPECT_FALSE(isShown(panel()));
}

TEST_F(HiddenStartTest, WindowOfTheFirstShowingIsMadeBeforeAnybodyWaitsForIt) {
    launchHidden();
    ASSERT_NE(panel(), nullptr);
    EXPECT_FALSE(isShown(panel()));
    EXPECT_EQ(popover(), nullptr);
    const QPointer made(panel());
    delegate->performAction(u"toggle"_s);
    EXPECT_TRUE(isShown(panel()));
    EXPECT_EQ(panel(), made);
}

TEST_F(HiddenStartTest, SoIsThatOfAPopover) {
    delegate->model().setPresentationMode(PresentationMode::Popover);
    statusBar->hasButton = true;
    launchHidden();
    EXPECT_NE(popover(), nullptr);
    EXPECT_FALSE(isShown(popover()));
    EXPECT_EQ(panel(), nullptr);
}

TEST_F(HiddenStartTest, NoneIsMadeBesideOneThatShowsByThen) {
    delegate->model().setPresentationMode(PresentationMode::Popover);
    delegate->applicationDidFinishLaunching(AppDelegate::Launch::Hidden);
    // As a panel, for there is no icon.
    delegate->performAction(u"toggle"_s);
    queue.run();
    EXPECT_TRUE(isShown(panel()));
    EXPECT_EQ(popover(), nullptr);
}

TEST_F(HiddenStartTest, EndBeforeTheLastMomentHarmsNobody) {
    launchHidden();
    delegate.reset();
    waitAsLongAsItDoes();
}

} // namespace
} // namespace quorvane
