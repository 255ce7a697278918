// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <panel/PanelMetrics.h>
#include <platform/KeyCodes.h>
#include <support/WidgetSearch.h>

#include <QApplication>
#include <QTest>
#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;

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
            "mayReadShortcut",
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

TEST_F(AppDelegateTest, HeldShortcutTogglesOnce) {
    launch();
    for (int repeat = 0; repeat < 4; ++repeat)
        EXPECT_EQ(taps->press(shortcut), TapVerdict::Swallow);
    queue.run();
    EXPECT_FALSE(panel()->isVisible());
    taps->release();
    pressShortcut();
    EXPECT_TRUE(panel()->isVisible());
}

TEST_F(AppDelegateTest, ShortcutHeldElsewhereComesBackAtEachOccasion) {
    const std::vector<std::pair<const char*, std::function<void()>>> occasions{
        {"front window changed",
         [this] {
             workspace->setFront(editor);
         }},
        {"reopened",
         [this] {
             delegate->surfaceMainUIForReopen();
         }},
        {"preferences shown",
         [this] {
             delegate->showPreferences();
         }},
        {"called by the bus", [this] {
             delegate->performAction(u"copy"_s);
         }}};
    for (const auto& [name, happen] : occasions) {
        makeDelegate();
        taps->setHeldElsewhere(true);
        launch();
        EXPECT_FALSE(delegate->hotKeyMonitor()->isArmed());
        taps->setHeldElsewhere(false);
        happen();
        EXPECT_TRUE(delegate->hotKeyMonitor()->isArmed()) << name;
        queue.run();
    }
}

TEST_F(AppDelegateTest, ShortcutThatComesBackTakesItsWordsOutOfThePreferences) {
    taps->setHeldElsewhere(true);
    launch();
    delegate->showPreferences();
    queue.run();
    const auto words = u"Another program holds this shortcut."_s;
    const auto* said = widgetByRole(*preferences(), QAccessible::StaticText, words);
    ASSERT_NE(said, nullptr);
    EXPECT_TRUE(said->isVisible());
    taps->setHeldElsewhere(false);
    workspace->setFront(editor);
    queue.run();
    EXPECT_FALSE(said->isVisible());
}

TEST_F(AppDelegateTest, PreferencesNameWhoHoldsTheShortcut) {
    taps->setHeldElsewhere(true);
    taps->setHolder(u"Screen recorder"_s);
    launch();
    delegate->showPreferences();
    const auto words = u"Screen recorder holds this shortcut."_s;
    const auto* said = widgetByRole(*preferences(), QAccessible::StaticText, words);
    ASSERT_NE(said, nullptr);
    EXPECT_TRUE(said->isVisible());
}

TEST_F(AppDelegateTest, TheModelFollowsTheShortcutOfTheDesktopsSettings) {
    launch();
    delegate->showPreferences();
    log.clear();
    taps->changeChord({keycode::f, modifier::control | modifier::option});
    queue.run();
    const HotKeyCombo chosen{keycode::f, combomodifier::control | combomodifier::option};
    EXPECT_EQ(delegate->model().hotKey(), chosen);
    EXPECT_EQ(HotKeyCombo::load(defaults), chosen);
    EXPECT_THAT(calls(), testing::Not(testing::Contains("watch")))
        << "the desktop is not told what it has told";
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

TEST_F(AppDelegateTest, ReopenOfAShownPanelOnlyShowsIt) {
    showOver(editor);
    log.clear();
    delegate->surfaceMainUIForReopen();
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_THAT(calls(), ElementsAre("preparePanel", "presentPanel"));
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
    queue.run();
    EXPECT_EQ(calls().back(), "handOver");
}

TEST_F(AppDelegateTest, ActionsDeliverNothingWhileThereIsNothingToDeliver) {
    launch();
    queue.run();
    delegate->model().setSelectedTimeZones({});
    pasteboard->setContents(plainText(u"mine"_s));
    log.clear();
    delegate->performAction(u"copy"_s);
    delegate->performAction(u"insert"_s);
    queue.advance(1s);
    EXPECT_THAT(calls(), ElementsAre());
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
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
