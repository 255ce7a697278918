// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <support/WidgetSearch.h>

#include <QApplication>
#include <QTest>
#include <QWindow>
#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;

using Call = CallLog::Call;

const RunningApplication editor{42, u"editor"_s};
const std::string pasteKeys = "paste";

class AppDelegateTest : public DelegateFixture {};

TEST_F(AppDelegateTest, LaunchShowsThePanelAndThenArmsTheShortcut) {
    launch();
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_TRUE(delegate->hotKeyMonitor()->isArmed());
    EXPECT_THAT(
        calls(),
        ElementsAre(
            "policy accessory",
            "makeStatusItem",
            "setImage Quorvane",
            "setVisible",
            "preparePanel",
            "presentPanel",
            "isTrusted",
            "createTap",
            "watch",
            "enable"));
    EXPECT_EQ(AppDelegate::_sharedDelegate(), delegate.get());
}

TEST_F(AppDelegateTest, DesktopsAppearanceIsReadOnceAfterTheFirstPaint) {
    launch();
    EXPECT_EQ(appearance->reads(), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return appearance->reads() > 0; }));
    pressShortcut();
    pressShortcut();
    panel()->repaint();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(appearance->reads(), 1);
}

TEST_F(AppDelegateTest, StoredDockIconMakesTheProgramRegular) {
    defaults.setBool(u"showInDock"_s, true);
    makeDelegate();
    launch();
    EXPECT_EQ(calls().front(), "policy regular");
}

TEST_F(AppDelegateTest, ShortcutHidesShowsAndRemembersWhatWasInFront) {
    launch();
    pressShortcut();
    EXPECT_FALSE(panel()->isVisible());

    workspace->setFront(editor);
    log.clear();
    pressShortcut();
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_THAT(calls(), ElementsAre("frontmostApplication", "preparePanel", "presentPanel"));
}

TEST_F(AppDelegateTest, HeldShortcutTogglesAtEachRepeat) {
    launch();
    for (int repeat = 0; repeat < 4; ++repeat)
        EXPECT_EQ(taps->press(shortcut), TapVerdict::Swallow);
    queue.run();
    EXPECT_TRUE(panel()->isVisible());
}

TEST_F(AppDelegateTest, InsertionKeepsItsTimesAndTheOrderOfItsCalls) {
    showOver(editor);
    pasteboard->setContents(plainText(u"mine"_s));
    delegate->model().setFormatPreset(DateFormatPreset::UnixTimestamp);
    const auto start = elapsed();
    log.clear();

    delegate->performInsert();
    EXPECT_FALSE(panel()->isVisible());
    queue.advance(1s);

    EXPECT_THAT(
        log.calls(),
        ElementsAre(
            Call{start + 80ms, "activate editor"},
            Call{start + 200ms, "isTrusted"},
            Call{start + 200ms, "save"},
            Call{start + 200ms, "clear"},
            Call{start + 200ms, "setString passing \"1710021900\""},
            Call{start + 200ms, pasteKeys},
            Call{start + 800ms, "clear"},
            Call{start + 800ms, "write"}));
    EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
}

TEST_F(AppDelegateTest, TextIsTheOneOfTheMomentOfTheInsert) {
    showOver(editor);
    delegate->model().setFormatPreset(DateFormatPreset::UnixTimestamp);
    delegate->performInsert();
    delegate->model().setStartDate({0});
    queue.advance(200ms);
    EXPECT_EQ(pasteboard->contents(), plainText(u"1710021900"_s));
}

TEST_F(AppDelegateTest, WithNothingRememberedTheKeysGoToWhateverIsInFront) {
    launch();
    log.clear();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::Not(testing::Contains(testing::StartsWith("activate"))));
    EXPECT_THAT(calls(), testing::Contains(pasteKeys));
}

TEST_F(AppDelegateTest, ApplicationThatCannotBeActivatedStopsNoInsertion) {
    showOver(editor);
    workspace->loseWindows();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::IsSupersetOf({std::string("activate editor"), pasteKeys}));
}

TEST_F(AppDelegateTest, PanelThatWasNeverMadeIsNoObstacle) {
    makeDelegate();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(log.calls(), testing::Contains(Call{200ms, pasteKeys}));
}

TEST_F(AppDelegateTest, EmptyOutputIsInserted) {
    showOver(editor);
    delegate->model().setSelectedTimeZones({});
    log.clear();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::Contains("setString passing \"\""));
}

TEST_F(AppDelegateTest, InsertionsMayOverlap) {
    showOver(editor);
    pasteboard->setContents(plainText(u"mine"_s));
    delegate->model().setFormatPreset(DateFormatPreset::UnixTimestamp);
    delegate->performInsert();
    queue.advance(300ms);
    delegate->performInsert();
    queue.advance(2s);
    // The second save took the first one's text for the user's own.
    EXPECT_EQ(pasteboard->contents(), plainText(u"1710021900"_s));
    EXPECT_EQ(std::ranges::count(calls(), pasteKeys), 2);
}

TEST_F(AppDelegateTest, QuitRestoresThePasteboardFirst) {
    showOver(editor);
    pasteboard->setContents(plainText(u"mine"_s));
    delegate->performInsert();
    queue.advance(300ms);
    log.clear();
    delegate->terminate();
    EXPECT_THAT(calls(), ElementsAre("clear", "write", "handOver"));
    EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
}

TEST_F(AppDelegateTest, QuitBeforeThePasteLeavesThePasteboardAlone) {
    showOver(editor);
    delegate->performInsert();
    queue.advance(100ms);
    log.clear();
    delegate->terminate();
    delegate->terminate();
    EXPECT_THAT(calls(), ElementsAre("handOver"));
}

TEST_F(AppDelegateTest, ReopenShowsAHiddenPanelAndRemembersWhatWasInFront) {
    launch();
    pressShortcut();
    workspace->setFront(editor);
    log.clear();
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_THAT(calls(), ElementsAre("frontmostApplication", "preparePanel", "presentPanel"));
}

TEST_F(AppDelegateTest, ReopenOfAShownPanelKeepsWhatIsRemembered) {
    showOver(editor);
    workspace->setFront(RunningApplication{43, u"another"_s});
    log.clear();
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_THAT(calls(), ElementsAre("preparePanel", "presentPanel"));
    delegate->performInsert();
    queue.advance(100ms);
    EXPECT_EQ(calls().back(), "activate editor");
}

TEST_F(AppDelegateTest, ActionsAreCalledByName) {
    launch();
    delegate->performAction(u"toggle"_s);
    EXPECT_FALSE(panel()->isVisible());
    delegate->performAction(u"Toggle"_s);
    delegate->performAction(u""_s);
    EXPECT_FALSE(panel()->isVisible());

    log.clear();
    delegate->performAction(u"copy"_s);
    EXPECT_THAT(calls(), ElementsAre("clear", testing::StartsWith("setString lasting")));
    delegate->performAction(u"insert"_s);
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::Contains(pasteKeys));
    delegate->performAction(u"quit"_s);
    EXPECT_EQ(calls().back(), "handOver");
}

TEST_F(AppDelegateTest, PreferencesTakeThePlaceOfThePanelAndAreKept) {
    launch();
    delegate->performAction(u"preferences"_s);
    EXPECT_FALSE(panel()->isVisible());
    auto* window = preferences();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    window->close();
    delegate->showPreferences();
    EXPECT_EQ(preferences(), window);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(AppDelegateTest, DockSwitchIsFollowedOnTheNextTurn) {
    launch();
    queue.run();
    log.clear();
    delegate->model().setShowInDock(true);
    EXPECT_TRUE(calls().empty());
    queue.run();
    EXPECT_THAT(calls(), ElementsAre("policy regular", "activate panel", "orderFront panel"));
}

TEST_F(AppDelegateTest, VisiblePanelFollowsToAnotherVirtualDesktop) {
    launch();
    log.clear();
    workspace->changeSpace();
    EXPECT_THAT(calls(), ElementsAre("orderFront panel"));
    pressShortcut();
    log.clear();
    workspace->changeSpace();
    EXPECT_TRUE(calls().empty());
}

TEST_F(AppDelegateTest, MovedPanelComesBackToItsPlaceAfterARestart) {
    launch();
    const auto height = panel()->height();
    panel()->move(40, 30);
    queue.advance(1s);
    makeDelegate();
    launch();
    EXPECT_EQ(panel()->geometry(), QRect(40, 30, 504, height));
}

TEST_F(AppDelegateTest, StoredWidthIsCorrected) {
    frames().setFrame(u"PanelV2"_s, QRect(20, 10, 900, 450));
    launch();
    EXPECT_EQ(panel()->geometry(), QRect(20, 10, 504, 450));
}

TEST_F(AppDelegateTest, PanelOffEveryScreenIsCentred) {
    frames().setFrame(u"PanelV2"_s, QRect(9000, 9000, 504, 400));
    launch();
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(panel()->geometry().center().x(), screen.center().x());
    EXPECT_TRUE(screen.intersects(panel()->geometry()));
}

TEST_F(AppDelegateTest, FirstPanelIsCentredAndAtLeast300High) {
    launch();
    EXPECT_EQ(panel()->width(), 504);
    EXPECT_GE(panel()->height(), 300);
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(panel()->geometry().center().x(), screen.center().x());
}

TEST_F(AppDelegateTest, PlaceThatTheUserDidNotChooseIsNotSaved) {
    launch();
    queue.advance(1s);
    delegate->terminate();
    EXPECT_EQ(frames().frame(u"PanelV2"_s), std::nullopt);
}

TEST_F(AppDelegateTest, QuitSavesThePlaceThatIsNotYetSaved) {
    launch();
    panel()->move(60, 50);
    delegate->terminate();
    EXPECT_EQ(frames().frame(u"PanelV2"_s)->topLeft(), QPoint(60, 50));
}

TEST_F(AppDelegateTest, TriggerAfterTheDelegateIsGoneDoesNothing) {
    launch();
    delegate->model().setShowInDock(true);
    (void) taps->press(shortcut);
    delegate.reset();
    log.clear();
    queue.advance(1s);
    EXPECT_THAT(calls(), ElementsAre("tap freed"));
}

} // namespace
} // namespace quorvane
