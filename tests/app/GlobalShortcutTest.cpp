// SPDX-License-Identifier: MIT
#include "GlobalShortcut.h"

#include <testing/CallLog.h>
#include <testing/FakeAccessibilityRight.h>
#include <testing/FakeEventTaps.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Activity = ShortcutRecorder::Activity;

constexpr HotKeyCombo first{2, 0x100};  // D with Command
constexpr HotKeyCombo second{3, 0x100}; // F with Command
constexpr KeyPress firstPress{2, modifier::command};
constexpr KeyPress secondPress{3, modifier::command};

class GlobalShortcutTest : public testing::Test {
protected:
    // Pending triggers keep the monitor, which must not outlive its services.
    void TearDown() override { queue.run(); }

    VirtualMainQueue queue;
    CallLog log{queue};
    FakeAccessibilityRight right{log};
    FakeEventTaps taps{log};
    int triggers = 0;
    int activityChanges = 0;
    GlobalShortcut shortcut{
        {right, taps, queue},
        {[this] { ++triggers; },
         [this] {
             ++activityChanges;
         }}};
};

TEST_F(GlobalShortcutTest, ChangeBeforeTheStartMakesNoMonitor) {
    shortcut.change(first);
    EXPECT_EQ(shortcut.monitor(), nullptr);
    EXPECT_EQ(taps.tap(), nullptr);
    EXPECT_EQ(shortcut.activity(), Activity::Unavailable);
}

TEST_F(GlobalShortcutTest, ChangeTakesEffectAtTheNextPress) {
    shortcut.startHotKeyMonitor(first);
    EXPECT_EQ(taps.press(firstPress), TapVerdict::Swallow);
    queue.run();
    shortcut.change(second);
    EXPECT_EQ(taps.press(firstPress), TapVerdict::Pass);
    EXPECT_EQ(taps.press(secondPress), TapVerdict::Swallow);
    queue.run();
    EXPECT_EQ(triggers, 2);
}

TEST_F(GlobalShortcutTest, ActivityTellsWhetherPressesReachTheProgram) {
    shortcut.startHotKeyMonitor(first);
    EXPECT_EQ(shortcut.activity(), Activity::Active);
    taps.setHeldElsewhere(true);
    EXPECT_EQ(shortcut.activity(), Activity::Active) << "a shortcut that is ours stays ours";
    shortcut.change(second);
    EXPECT_EQ(shortcut.activity(), Activity::HeldElsewhere);
    taps.setLacksKey(true);
    shortcut.change(first);
    EXPECT_EQ(shortcut.activity(), Activity::NoSuchKey);
    taps.refuse(TapFailure{});
    shortcut.change(first);
    EXPECT_EQ(shortcut.activity(), Activity::Unavailable);
}

TEST_F(GlobalShortcutTest, HeldKeyIsOnePressHoweverOftenItRepeats) {
    shortcut.startHotKeyMonitor(first);
    // The first repeat comes later than the others, as on every keyboard.
    for (const auto pause : {0ms, 660ms, 40ms, 40ms, 40ms}) {
        queue.advance(pause);
        (void) taps.press(firstPress);
        queue.run();
    }
    EXPECT_EQ(triggers, 1);
}

TEST_F(GlobalShortcutTest, ReleaseEndsAPress) {
    shortcut.startHotKeyMonitor(first);
    for (int press = 0; press < 3; ++press) {
        (void) taps.press(firstPress);
        taps.release();
    }
    queue.run();
    EXPECT_EQ(triggers, 3) << "in the order in which they were pressed, though they run later";
}

TEST_F(GlobalShortcutTest, PressByWhichItWasRecordedIsNoPressOfIt) {
    shortcut.startHotKeyMonitor(first);
    taps.holdKey();
    shortcut.change(second);
    queue.advance(660ms);
    (void) taps.press(secondPress);
    queue.run();
    EXPECT_EQ(triggers, 0);
    taps.release();
    (void) taps.press(secondPress);
    queue.run();
    EXPECT_EQ(triggers, 1);
}

TEST_F(GlobalShortcutTest, SecondWithoutATriggerEndsAPressWhoseReleaseWasLost) {
    shortcut.startHotKeyMonitor(first);
    (void) taps.press(firstPress);
    queue.run();
    queue.advance(999ms);
    (void) taps.press(firstPress);
    queue.run();
    EXPECT_EQ(triggers, 1);
    queue.advance(1000ms);
    (void) taps.press(firstPress);
    queue.run();
    EXPECT_EQ(triggers, 2);
}

TEST_F(GlobalShortcutTest, WithoutReleasesTriggersInQuickSuccessionAreOnePress) {
    taps.setTellsRelease(false);
    shortcut.startHotKeyMonitor(first);
    for (const auto pause : {0ms, 149ms, 149ms, 149ms}) {
        queue.advance(pause);
        (void) taps.press(firstPress);
        taps.release();
        queue.run();
    }
    EXPECT_EQ(triggers, 1);
    queue.advance(150ms);
    (void) taps.press(firstPress);
    queue.run();
    EXPECT_EQ(triggers, 2);
}

TEST_F(GlobalShortcutTest, ShortcutThatWasHeldElsewhereComesBackWhenAskedForAgain) {
    taps.setHeldElsewhere(true);
    shortcut.startHotKeyMonitor(first);
    queue.run();
    activityChanges = 0;
    shortcut.retry();
    queue.run();
    EXPECT_EQ(activityChanges, 0);
    taps.setHeldElsewhere(false);
    shortcut.retry();
    queue.run();
    EXPECT_EQ(activityChanges, 1);
    EXPECT_EQ(shortcut.activity(), Activity::Active);
    EXPECT_EQ(taps.press(firstPress), TapVerdict::Swallow);
}

TEST_F(GlobalShortcutTest, ShortcutThatIsOursIsNotAskedForAgain) {
    shortcut.retry();
    shortcut.startHotKeyMonitor(first);
    log.clear();
    shortcut.retry();
    EXPECT_TRUE(log.calls().empty());
}

TEST_F(GlobalShortcutTest, MissingRightStaysForTheRun) {
    right.setTrusted(false);
    shortcut.startHotKeyMonitor(first);
    log.clear();
    right.setTrusted(true);
    shortcut.retry();
    EXPECT_TRUE(log.calls().empty());
    EXPECT_EQ(shortcut.activity(), Activity::Unavailable);
}

} // namespace
} // namespace quorvane
