// SPDX-License-Identifier: MIT
#include <hotkey/HotKeyMonitor.h>
#include <platform/KeyCodes.h>
#include <testing/CallLog.h>
#include <testing/FakeAccessibilityRight.h>
#include <testing/FakeEventTaps.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr auto shortcutFlags = modifier::control | modifier::shift | modifier::command;
constexpr KeyPress shortcut{2, shortcutFlags};

class HotKeyMonitorTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakeAccessibilityRight right{log};
    FakeEventTaps taps{log};
    int triggered = 0;
    std::shared_ptr<HotKeyMonitor> monitor =
        HotKeyMonitor::create(HotKeyCombo(), {right, taps, queue});

    HotKeyMonitorTest() {
        monitor->setOnTriggered([this] { ++triggered; });
    }

    // Pending triggers keep the monitor, which must not outlive its services.
    void TearDown() override { queue.run(); }
};

TEST_F(HotKeyMonitorTest, SwallowsTheShortcutAndTriggersOnceInTheNextIteration) {
    monitor->start();
    EXPECT_TRUE(monitor->isArmed());
    EXPECT_EQ(taps.press(shortcut), TapVerdict::Swallow);
    EXPECT_EQ(triggered, 0);
    queue.run();
    EXPECT_EQ(triggered, 1);
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(HotKeyMonitorTest, PassesAPressWithOneModifierMore) {
    monitor->start();
    EXPECT_EQ(taps.press({2, shortcutFlags | modifier::option}), TapVerdict::Pass);
    queue.run();
    EXPECT_EQ(triggered, 0);
}

TEST_F(HotKeyMonitorTest, PassesAPressWithOneModifierLess) {
    monitor->start();
    EXPECT_EQ(taps.press({2, modifier::control | modifier::command}), TapVerdict::Pass);
    EXPECT_EQ(taps.press({2, modifier::none}), TapVerdict::Pass);
}

TEST_F(HotKeyMonitorTest, PassesAnotherKey) {
    monitor->start();
    EXPECT_EQ(taps.press({3, shortcutFlags}), TapVerdict::Pass);
}

TEST_F(HotKeyMonitorTest, LockKeysSpoilNothing) {
    monitor->start();
    constexpr ModifierFlags othersThatDoNotCount{0x200000 | 0x400000 | 0x800000};
    EXPECT_EQ(taps.press({2, shortcutFlags | modifier::capsLock}), TapVerdict::Swallow);
    EXPECT_EQ(taps.press({2, shortcutFlags | othersThatDoNotCount}), TapVerdict::Swallow);
}

TEST_F(HotKeyMonitorTest, EveryRepeatTriggersAndIsSwallowed) {
    monitor->start();
    for (int repeat = 0; repeat < 5; ++repeat)
        EXPECT_EQ(taps.press(shortcut), TapVerdict::Swallow);
    queue.run();
    EXPECT_EQ(triggered, 5);
}

TEST_F(HotKeyMonitorTest, ReleasesAreToldInOrderWithTheTriggers) {
    std::string order;
    monitor->setOnTriggered([&] { order += 'T'; });
    monitor->setOnReleased([&] { order += 'R'; });
    EXPECT_FALSE(monitor->tellsRelease());
    monitor->start();
    EXPECT_TRUE(monitor->tellsRelease());
    for (int press = 0; press < 2; ++press) {
        (void) taps.press(shortcut);
        taps.release();
    }
    EXPECT_EQ(order, "");
    queue.run();
    EXPECT_EQ(order, "TRTR");
}

TEST_F(HotKeyMonitorTest, TakesTheKeysThatTheUserChoseInTheDesktopsSettings) {
    std::vector<HotKeyCombo> told;
    monitor->setOnComboChanged([&] { told.push_back(monitor->combo()); });
    monitor->start();
    taps.changeChord({keycode::f, modifier::control | modifier::option});
    EXPECT_EQ(taps.press({keycode::f, modifier::control | modifier::option}), TapVerdict::Swallow);
    EXPECT_TRUE(told.empty());
    queue.run();
    const HotKeyCombo chosen{keycode::f, combomodifier::control | combomodifier::option};
    EXPECT_EQ(told, std::vector{chosen});
    EXPECT_EQ(triggered, 1);
    EXPECT_EQ(taps.press(shortcut), TapVerdict::Pass);
}

TEST_F(HotKeyMonitorTest, StopOnAnIdleMonitorTouchesNothing) {
    monitor->stop();
    EXPECT_TRUE(log.calls().empty());
}

TEST_F(HotKeyMonitorTest, StopTwiceIsHarmless) {
    monitor->start();
    monitor->stop();
    const auto callsOfTheFirst = log.calls();
    monitor->stop();
    EXPECT_EQ(log.calls(), callsOfTheFirst);
    EXPECT_FALSE(monitor->isArmed());
    EXPECT_EQ(taps.press(shortcut), TapVerdict::Pass);
}

TEST_F(HotKeyMonitorTest, WithoutTheRightItStaysIdleAndAsksForNothing) {
    right.setTrusted(false);
    monitor->start();
    EXPECT_EQ(log.calls(), (std::vector<CallLog::Call>{{{}, "mayReadShortcut"}}));
    EXPECT_FALSE(monitor->isArmed());
    EXPECT_EQ(monitor->lastFailure()->reason, u"the accessibility right is missing"_s);
    log.clear();
    monitor->stop();
    EXPECT_TRUE(log.calls().empty());
}

TEST_F(HotKeyMonitorTest, WithoutATapItStaysIdleUntilTheNextStart) {
    taps.refuse({u"no keyboard"_s});
    monitor->start();
    EXPECT_FALSE(monitor->isArmed());
    EXPECT_EQ(monitor->lastFailure()->reason, u"no keyboard"_s);
}

TEST_F(HotKeyMonitorTest, ComboChangedWhileArmedHoldsFromTheNextPress) {
    monitor->start();
    monitor->setCombo({9, 0x800});
    EXPECT_EQ(taps.tap()->watched, (KeyChord{9, modifier::option}));
    EXPECT_EQ(taps.press(shortcut), TapVerdict::Pass);
    EXPECT_EQ(taps.press({9, modifier::option}), TapVerdict::Swallow);
}

TEST_F(HotKeyMonitorTest, ComboChangedWhileIdleTouchesNothing) {
    monitor->setCombo({9, 0x800});
    EXPECT_TRUE(log.calls().empty());
    monitor->start();
    EXPECT_EQ(taps.tap()->watched, (KeyChord{9, modifier::option}));
}

TEST_F(HotKeyMonitorTest, ComboWithoutModifiersSwallowsThePlainKey) {
    monitor->setCombo({2, 0});
    monitor->start();
    EXPECT_EQ(taps.press({2, modifier::none}), TapVerdict::Swallow);
    EXPECT_EQ(taps.press(shortcut), TapVerdict::Pass);
}

TEST_F(HotKeyMonitorTest, ComboThatNoPressCanMatchWatchesNothing) {
    monitor->setCombo({2, 0x101});
    monitor->start();
    EXPECT_EQ(taps.tap()->watched, std::nullopt);
    EXPECT_FALSE(monitor->isArmed());
    EXPECT_EQ(taps.press({2, modifier::command}), TapVerdict::Pass);
}

TEST_F(HotKeyMonitorTest, CallbackReplacedBeforeTheTriggerRunsIsTheOneThatRuns) {
    monitor->start();
    (void) taps.press(shortcut);
    int replaced = 0;
    monitor->setOnTriggered([&] { ++replaced; });
    queue.run();
    EXPECT_EQ(triggered, 0);
    EXPECT_EQ(replaced, 1);
}

TEST_F(HotKeyMonitorTest, WithoutACallbackThePressIsSwallowedAllTheSame) {
    monitor->start();
    monitor->setOnTriggered({});
    EXPECT_EQ(taps.press(shortcut), TapVerdict::Swallow);
    queue.run();
}

TEST_F(HotKeyMonitorTest, PendingTriggerKeepsTheMonitorAlive) {
    monitor->start();
    (void) taps.press(shortcut);
    const std::weak_ptr<HotKeyMonitor> weak = monitor;
    monitor.reset();
    EXPECT_FALSE(weak.expired());
    queue.run();
    EXPECT_EQ(triggered, 1);
    EXPECT_TRUE(weak.expired());
}

TEST_F(HotKeyMonitorTest, GoingAwayFreesTheTapWithoutStopping) {
    monitor->start();
    log.clear();
    monitor.reset();
    EXPECT_EQ(log.calls(), (std::vector<CallLog::Call>{{{}, "tap freed"}}));
    EXPECT_FALSE(taps.tap()->alive);
}

TEST_F(HotKeyMonitorTest, RearmingTakesTheShortcutAnew) {
    monitor->start();
    log.clear();
    monitor->setCombo({9, 0x100});
    monitor->stop();
    monitor->start();
    EXPECT_EQ(
        log.calls(),
        (std::vector<CallLog::Call>{
            {{}, "watch"},
            {{}, "disable"},
            {{}, "tap freed"},
            {{}, "mayReadShortcut"},
            {{}, "createTap"},
            {{}, "watch"},
            {{}, "enable"}}));
}

TEST_F(HotKeyMonitorTest, ShortcutHeldElsewhereIsSilentAndCanBeAskedFor) {
    taps.setHeldElsewhere(true);
    monitor->start();
    EXPECT_FALSE(monitor->isArmed());
    EXPECT_EQ(monitor->lastFailure(), std::nullopt);
    taps.setHeldElsewhere(false);
    EXPECT_FALSE(monitor->isArmed()) << "nobody tells that the shortcut has become free";
    monitor->setCombo(monitor->combo());
    EXPECT_TRUE(monitor->isArmed());
    EXPECT_EQ(taps.press(shortcut), TapVerdict::Swallow);
}

TEST_F(HotKeyMonitorTest, RetryAsksAgainForAShortcutHeldElsewhereOnly) {
    int changes = 0;
    monitor->setOnDeliveryChanged([&] { ++changes; });
    monitor->retry();
    EXPECT_TRUE(log.calls().empty());
    taps.setHeldElsewhere(true);
    monitor->start();
    EXPECT_EQ(monitor->delivery(), TapDelivery::HeldElsewhere);
    monitor->retry();
    queue.run();
    EXPECT_EQ(changes, 1);
    taps.setHeldElsewhere(false);
    monitor->retry();
    queue.run();
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(monitor->isArmed());
    log.clear();
    monitor->retry();
    EXPECT_TRUE(log.calls().empty());
}

TEST_F(HotKeyMonitorTest, RetryStartsAgainWhereThereWasNoTap) {
    int changes = 0;
    monitor->setOnDeliveryChanged([&] { ++changes; });
    taps.refuse({u"not added yet"_s});
    monitor->start();
    monitor->retry();
    queue.run();
    EXPECT_FALSE(monitor->isArmed());
    EXPECT_EQ(changes, 0);
    taps.permit();
    monitor->retry();
    queue.run();
    EXPECT_TRUE(monitor->isArmed());
    EXPECT_GE(changes, 1);
}

TEST_F(HotKeyMonitorTest, KeyThatTheKeyboardLacksIsTold) {
    taps.setLacksKey(true);
    monitor->start();
    EXPECT_EQ(monitor->delivery(), TapDelivery::NoSuchKey);
    EXPECT_FALSE(monitor->isArmed());
}

TEST_F(HotKeyMonitorTest, ShortcutThatIsHeldStaysOursWhateverOthersAskFor) {
    monitor->start();
    taps.setHeldElsewhere(true);
    monitor->setCombo(monitor->combo());
    EXPECT_TRUE(monitor->isArmed());
    monitor->stop();
    monitor->start();
    EXPECT_FALSE(monitor->isArmed());
}

TEST_F(HotKeyMonitorTest, KeyCodeOutOfRangeStopsTheProcess) {
    monitor->start();
    EXPECT_EQ(taps.press({4294967295, shortcutFlags}), TapVerdict::Pass);
    EXPECT_DEATH((void) taps.press({-1, shortcutFlags}), "^$");
    EXPECT_DEATH((void) taps.press({4294967296, shortcutFlags}), "^$");
}

} // namespace
} // namespace quorvane
