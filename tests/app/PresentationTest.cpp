// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <support/WidgetSearch.h>

#include <QAbstractButton>
#include <QScreen>
#include <QTest>
#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

const RunningApplication editor{42, u"editor"_s};
const RunningApplication browser{43, u"browser"_s};

class PresentationTest : public DelegateFixture {
protected:
    /// Launched in that mode, shown, and everything that start-up put off done.
    void launchAs(PresentationMode mode) {
        defaults.setString(DateTimeModel::presentationModeKey.toString(), rawValue(mode));
        makeDelegate();
        statusBar->hasButton = bar.hasButton;
        statusBar->frame = bar.frame;
        launch();
        queue.run();
    }

    /// What the bar is like when the program starts.
    struct Bar {
        bool hasButton = true;
        std::optional<QRect> frame = QRect(600, 0, 22, 22);
    } bar;

    void setMode(PresentationMode mode) {
        delegate->model().setPresentationMode(mode);
        queue.run();
    }

    void clickIcon() {
        statusBar->click(StatusItem::Click::Left);
        queue.run();
    }

    static void pressOutside() { QTest::mouseClick(popover(), Qt::LeftButton, {}, {-20, -20}); }
};

TEST_F(PresentationTest, LaunchShowsTheInterfaceInItsMode) {
    launchAs(PresentationMode::Popover);
    EXPECT_TRUE(isShown(popover()));
    EXPECT_EQ(panel(), nullptr);
    launchAs(PresentationMode::Window);
    EXPECT_TRUE(isShown(panel()));
    EXPECT_EQ(popover(), nullptr);
}

TEST_F(PresentationTest, LaunchDoesNotRememberWhatWasInFront) {
    launchAs(PresentationMode::Popover);
    EXPECT_THAT(calls(), Not(Contains("frontmostApplication")));
}

TEST_F(PresentationTest, WithoutABarThePopoverFallsBackToThePanel) {
    bar.hasButton = false;
    launchAs(PresentationMode::Popover);
    EXPECT_EQ(delegate->effectivePresentationMode(), PresentationMode::Window);
    EXPECT_TRUE(isShown(panel()));
    statusBar->setHasButton(true);
    EXPECT_EQ(delegate->effectivePresentationMode(), PresentationMode::Popover);
}

TEST_F(PresentationTest, IconAndShortcutToggleThePopover) {
    launchAs(PresentationMode::Popover);
    clickIcon();
    EXPECT_FALSE(isShown(popover()));
    pressShortcut();
    EXPECT_TRUE(isShown(popover()));
    pressShortcut();
    EXPECT_FALSE(isShown(popover()));
    clickIcon();
    EXPECT_TRUE(isShown(popover()));
}

TEST_F(PresentationTest, EachShowingByAToggleRemembersWhatIsInFrontThen) {
    launchAs(PresentationMode::Popover);
    clickIcon();
    workspace->setFront(editor);
    clickIcon();
    clickIcon();
    workspace->setFront(browser);
    clickIcon();
    delegate->performInsert();
    EXPECT_FALSE(isShown(popover()));
    queue.advance(100ms);
    EXPECT_EQ(calls().back(), "activate browser");
}

TEST_F(PresentationTest, ReopenShowsWhatIsShownAlreadyAndKeepsWhatIsRemembered) {
    launchAs(PresentationMode::Popover);
    clickIcon();
    workspace->setFront(editor);
    clickIcon();
    workspace->setFront(browser);
    log.clear();
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(isShown(popover()));
    EXPECT_THAT(calls(), Not(Contains("frontmostApplication")));
    clickIcon();
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(isShown(popover()));
    EXPECT_THAT(calls(), Contains("frontmostApplication"));
}

TEST_F(PresentationTest, PressOutsideClosesThePopover) {
    launchAs(PresentationMode::Popover);
    pressOutside();
    EXPECT_FALSE(isShown(popover()));
}

TEST_F(PresentationTest, ClickOnTheIconThatClosedThePopoverDoesNotReopenIt) {
    launchAs(PresentationMode::Popover);
    pressOutside();
    queue.advance(299ms);
    clickIcon();
    EXPECT_FALSE(isShown(popover()));
    clickIcon();
    EXPECT_TRUE(isShown(popover()));
}

TEST_F(PresentationTest, ClickAWhileAfterAPressOutsideOpens) {
    launchAs(PresentationMode::Popover);
    pressOutside();
    queue.advance(300ms);
    clickIcon();
    EXPECT_TRUE(isShown(popover()));
}

TEST_F(PresentationTest, ShortcutOpensRightAfterAPressOutside) {
    launchAs(PresentationMode::Popover);
    pressOutside();
    pressShortcut();
    EXPECT_TRUE(isShown(popover()));
}

TEST_F(PresentationTest, CloseButtonAndEscapeHideEither) {
    for (const auto mode : {PresentationMode::Popover, PresentationMode::Window}) {
        launchAs(mode);
        auto* window = mode == PresentationMode::Popover ? popover() : panel();
        auto* close = widgetByRole(*window, QAccessible::Button, u"Close"_s);
        qobject_cast<QAbstractButton*>(close)->click();
        EXPECT_FALSE(isShown(window));
        pressShortcut();
        QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(isShown(window));
    }
}

TEST_F(PresentationTest, PreferencesHideEither) {
    for (const auto mode : {PresentationMode::Popover, PresentationMode::Window}) {
        launchAs(mode);
        delegate->showPreferences();
        EXPECT_FALSE(isShown(popover()));
        EXPECT_FALSE(isShown(panel()));
        EXPECT_TRUE(isShown(preferences()));
        EXPECT_EQ(calls().back(), "activate preferences");
    }
}

TEST_F(PresentationTest, UpdateCheckTakesThePopoverAwayAndLeavesThePanel) {
    launchAs(PresentationMode::Popover);
    delegate->checkForUpdates();
    EXPECT_FALSE(isShown(popover()));
    launchAs(PresentationMode::Window);
    delegate->checkForUpdates();
    EXPECT_TRUE(isShown(panel()));
}

TEST_F(PresentationTest, PreferencesCannotBeMinimisedOutOfSight) {
    launchAs(PresentationMode::Window);
    delegate->showPreferences();
    const auto flags = preferences()->windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(PresentationTest, ModeChangeWhileShownShowsTheOther) {
    launchAs(PresentationMode::Window);
    log.clear();
    delegate->model().setPresentationMode(PresentationMode::Popover);
    EXPECT_TRUE(isShown(panel()));
    queue.run();
    EXPECT_EQ(panel(), nullptr);
    EXPECT_TRUE(isShown(popover()));
    setMode(PresentationMode::Window);
    EXPECT_EQ(popover(), nullptr);
    EXPECT_TRUE(isShown(panel()));
    EXPECT_THAT(calls(), Not(Contains("frontmostApplication")));
}

TEST_F(PresentationTest, ModeChangeWhileHiddenShowsNothingAndDiscardsTheOldOne) {
    launchAs(PresentationMode::Window);
    pressShortcut();
    setMode(PresentationMode::Popover);
    EXPECT_EQ(panel(), nullptr);
    EXPECT_FALSE(isShown(popover()));
    pressShortcut();
    pressShortcut();
    setMode(PresentationMode::Window);
    EXPECT_EQ(popover(), nullptr);
    EXPECT_FALSE(isShown(panel()));
}

TEST_F(PresentationTest, SwitchInTheHeaderLeadsToTheOtherMode) {
    launchAs(PresentationMode::Window);
    auto* toPopover = widgetByRole(*panel(), QAccessible::Button, u"Move to menu bar"_s);
    qobject_cast<QAbstractButton*>(toPopover)->click();
    queue.run();
    ASSERT_TRUE(isShown(popover()));
    auto* toPanel = widgetByRole(*popover(), QAccessible::Button, u"Detach as window"_s);
    qobject_cast<QAbstractButton*>(toPanel)->click();
    queue.run();
    EXPECT_TRUE(isShown(panel()));
}

TEST_F(PresentationTest, PlaceOfADiscardedPanelIsKept) {
    launchAs(PresentationMode::Window);
    panel()->move(33, 44);
    setMode(PresentationMode::Popover);
    setMode(PresentationMode::Window);
    EXPECT_EQ(panel()->pos(), QPoint(33, 44));
}

TEST_F(PresentationTest, HidingTheIconClosesThePopoverAndKeepsTheMode) {
    launchAs(PresentationMode::Popover);
    delegate->model().setShowInMenuBar(false);
    EXPECT_TRUE(isShown(popover()));
    queue.run();
    EXPECT_FALSE(isShown(popover()));
    EXPECT_FALSE(statusBar->isItemVisible());
    EXPECT_EQ(delegate->effectivePresentationMode(), PresentationMode::Popover);
    pressShortcut();
    EXPECT_TRUE(isShown(popover()));
}

TEST_F(PresentationTest, HidingTheIconLeavesThePanelAlone) {
    launchAs(PresentationMode::Window);
    delegate->model().setShowInMenuBar(false);
    queue.run();
    EXPECT_TRUE(isShown(panel()));
}

TEST_F(PresentationTest, LaunchWithAHiddenIconInPopoverModeEndsWithNothingVisible) {
    defaults.setBool(u"showInMenuBar"_s, false);
    defaults.setString(
        DateTimeModel::presentationModeKey.toString(), rawValue(PresentationMode::Popover));
    makeDelegate();
    launch();
    EXPECT_TRUE(isShown(popover()));
    EXPECT_TRUE(statusBar->isItemVisible());
    queue.run();
    EXPECT_FALSE(isShown(popover()));
    EXPECT_FALSE(statusBar->isItemVisible());
    pressShortcut();
    EXPECT_TRUE(isShown(popover()));
    pressShortcut();
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(isShown(popover()));
}

TEST_F(PresentationTest, BothIconsOffTheSecondStartShowsTheInterface) {
    launchAs(PresentationMode::Window);
    delegate->model().setShowInMenuBar(false);
    delegate->model().setShowInDock(false);
    queue.run();
    pressShortcut();
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(isShown(panel()));
}

TEST_F(PresentationTest, DockSwitchLeavesPanelAndPreferencesInFront) {
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

TEST_F(PresentationTest, DockSwitchWithNothingVisibleActivatesNothing) {
    launchAs(PresentationMode::Window);
    pressShortcut();
    log.clear();
    delegate->model().setShowInDock(true);
    queue.run();
    EXPECT_THAT(calls(), ElementsAre("policy regular"));
}

TEST_F(PresentationTest, PopoverHangsCentredBelowTheIcon) {
    bar.frame = QRect(300, 0, 22, 22);
    launchAs(PresentationMode::Popover);
    EXPECT_EQ(popover()->geometry().center().x(), QRect(300, 0, 22, 22).center().x());
    EXPECT_EQ(popover()->y(), 22 + 6);
    EXPECT_EQ(popover()->width(), 504);
}

TEST_F(PresentationTest, PopoverOfAnIconBelowStandsAboveIt) {
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    bar.frame = QRect(screen.right() - 30, screen.bottom() - 22, 22, 22);
    launchAs(PresentationMode::Popover);
    EXPECT_EQ(popover()->geometry().bottom(), bar.frame->top() - 6 - 1);
    EXPECT_EQ(popover()->geometry().right(), screen.right() - 8);
}

TEST_F(PresentationTest, PopoverWithoutAKnownIconStandsInTheCorner) {
    bar.frame = std::nullopt;
    launchAs(PresentationMode::Popover);
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(popover()->geometry().topRight(), screen.topRight() + QPoint(-8, 8));
}

TEST_F(PresentationTest, QuitByItsKeysFromEveryWindow) {
    launchAs(PresentationMode::Window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(panel()));
    QTest::keyClick(panel(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(calls().back(), "handOver");
    launchAs(PresentationMode::Popover);
    QTest::keyClick(popover(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(calls().back(), "handOver");
    launchAs(PresentationMode::Window);
    delegate->showPreferences();
    ASSERT_TRUE(QTest::qWaitForWindowActive(preferences()));
    QTest::keyClick(preferences(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(calls().back(), "handOver");
}

TEST_F(PresentationTest, EscapeClosesThePreferencesAndKeepsThem) {
    launchAs(PresentationMode::Window);
    delegate->showPreferences();
    auto* window = preferences();
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(isShown(window));
    delegate->showPreferences();
    EXPECT_EQ(preferences(), window);
}

} // namespace
} // namespace quorvane
