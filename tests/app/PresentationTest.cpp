// SPDX-License-Identifier: MIT
#include "PresentationFixture.h"

#include <panel/PanelMetrics.h>
#include <support/WidgetSearch.h>

#include <QAbstractButton>
#include <QLabel>
#include <QTest>
#include <gmock/gmock.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::Contains;
using testing::Not;

const RunningApplication editor{42, u"editor"_s, u"Editor"_s};
const RunningApplication browser{43, u"browser"_s};

class PresentationTest : public PresentationFixture {
protected:
    static bool showsLabel(const QWidget& window, const QString& text) {
        const auto labels = window.findChildren<QLabel*>();
        return std::ranges::any_of(
            labels, [&](const QLabel* label) { return label->text() == text; });
    }
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
    statusBar->hasButton = true;
    EXPECT_EQ(delegate->effectivePresentationMode(), PresentationMode::Popover);
}

TEST_F(PresentationTest, ShowsTheFocusAtOnceWhenOpenedByKeyboard) {
    for (const auto mode : {PresentationMode::Window, PresentationMode::Popover}) {
        launchAs(mode);
        const auto window = [&] {
            return mode == PresentationMode::Window ? panel() : popover();
        };
        EXPECT_FALSE(showsFocus(window()));
        pressShortcut();
        pressShortcut();
        EXPECT_TRUE(showsFocus(window()));
        clickIcon();
        clickIcon();
        EXPECT_FALSE(showsFocus(window()));
        delegate->performAction(u"toggle"_s);
        delegate->performAction(u"toggle"_s);
        EXPECT_TRUE(showsFocus(window()));
    }
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

TEST_F(PresentationTest, ReopenShowsWhatIsShownAlreadyAndAsksOnlyForWhatIsHidden) {
    launchAs(PresentationMode::Popover);
    clickIcon();
    workspace->setFront(editor);
    clickIcon();
    log.clear();
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(isShown(popover()));
    EXPECT_THAT(calls(), Not(Contains("frontmostApplication")));
    clickIcon();
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(isShown(popover()));
    EXPECT_THAT(calls(), Contains("frontmostApplication"));
}

TEST_F(PresentationTest, PanelThatStoodInGoesWhenThePopoverCanShow) {
    bar.hasButton = false;
    launchAs(PresentationMode::Popover);
    ASSERT_TRUE(isShown(panel()));
    statusBar->hasButton = true;
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(isShown(popover()));
    EXPECT_FALSE(isShown(panel()));
}

TEST_F(PresentationTest, PopoverGoesWhenThePanelHasToStandIn) {
    launchAs(PresentationMode::Popover);
    ASSERT_TRUE(isShown(popover()));
    statusBar->hasButton = false;
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(isShown(panel()));
    EXPECT_FALSE(isShown(popover()));
}

TEST_F(PresentationTest, InsertNamesWhatIsInFrontAndFollowsIt) {
    for (const auto mode : {PresentationMode::Popover, PresentationMode::Window}) {
        launchAs(mode);
        auto* window = mode == PresentationMode::Popover ? popover() : panel();
        const auto* insert = widgetByRole(*window, QAccessible::Button, u"Insert"_s);
        EXPECT_EQ(insert->toolTip(), u"Insert (Ctrl+Return)"_s);
        workspace->setFront(editor);
        EXPECT_EQ(insert->toolTip(), u"Insert into Editor (Ctrl+Return)"_s);
        EXPECT_EQ(insert->accessibleDescription(), insert->toolTip());
        workspace->close(editor);
        EXPECT_EQ(insert->toolTip(), u"Insert (Ctrl+Return)"_s);
    }
}

TEST_F(PresentationTest, UnderAnOpenPopoverNoOlderWindowTakesThePlaceOfOneThatGoes) {
    launchAs(PresentationMode::Popover);
    clickIcon();
    workspace->setFront(editor);
    clickIcon();
    workspace->close(editor);
    workspace->setFront(browser);
    delegate->performInsert();
    queue.advance(std::chrono::seconds(1));
    EXPECT_THAT(calls(), Not(Contains("activate browser")));
    EXPECT_THAT(calls(), Not(Contains("paste")));
    EXPECT_TRUE(notifications->shown);
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

TEST_F(PresentationTest, UpdateCheckTakesThePopoverAwayAndLeavesThePanel) {
    launchAs(PresentationMode::Popover);
    delegate->checkForUpdates();
    EXPECT_FALSE(isShown(popover()));
    launchAs(PresentationMode::Window);
    delegate->checkForUpdates();
    EXPECT_TRUE(isShown(panel()));
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
    auto* toPopover =
        widgetByRole(*panel(), QAccessible::Button, u"Open as popover at the tray icon"_s);
    qobject_cast<QAbstractButton*>(toPopover)->click();
    queue.run();
    ASSERT_TRUE(isShown(popover()));
    auto* toPanel = widgetByRole(*popover(), QAccessible::Button, u"Open as panel"_s);
    qobject_cast<QAbstractButton*>(toPanel)->click();
    queue.run();
    EXPECT_TRUE(isShown(panel()));
}

TEST_F(PresentationTest, KeyCapsFollowTheKeyboardLayout) {
    launchAs(PresentationMode::Window);
    keyboardLayout->setKey(2, u"d");
    queue.run();
    EXPECT_TRUE(showsLabel(*panel(), u"D"_s));
    // The panel is discarded, the popover and the preferences are there.
    setMode(PresentationMode::Popover);
    delegate->showPreferences();
    keyboardLayout->setKey(2, u"e");
    queue.run();
    EXPECT_TRUE(showsLabel(*popover(), u"E"_s));
    EXPECT_TRUE(preferences()->findChild<ShortcutRecorder*>()->keys().contains(u"E"_s));
    setMode(PresentationMode::Window);
    keyboardLayout->setKey(2, u"f");
    queue.run();
    EXPECT_TRUE(preferences()->findChild<ShortcutRecorder*>()->keys().contains(u"F"_s));
}

TEST_F(PresentationTest, PlaceOfADiscardedPanelIsKept) {
    launchAs(PresentationMode::Window);
    auto& traits = static_cast<FakeWindowTraits&>(*platform.windowTraits);
    traits.held = HeldInput{{}, 1};
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
    defaults.setString(setting::presentationMode.key, rawValue(PresentationMode::Popover));
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

TEST_F(PresentationTest, QuitByItsKeysFromEveryWindow) {
    launchAs(PresentationMode::Window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(panel()));
    QTest::keyClick(panel(), Qt::Key_Q, Qt::ControlModifier);
    queue.run();
    EXPECT_EQ(calls().back(), "handOver");
    launchAs(PresentationMode::Popover);
    QTest::keyClick(popover(), Qt::Key_Q, Qt::ControlModifier);
    queue.run();
    EXPECT_EQ(calls().back(), "handOver");
    launchAs(PresentationMode::Window);
    delegate->showPreferences();
    ASSERT_TRUE(QTest::qWaitForWindowActive(preferences()));
    QTest::keyClick(preferences(), Qt::Key_Q, Qt::ControlModifier);
    queue.run();
    EXPECT_EQ(calls().back(), "handOver");
}

} // namespace
} // namespace quorvane
