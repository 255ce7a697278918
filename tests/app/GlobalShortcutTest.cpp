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
using Activity = ShortcutRecorder::Activity;

constexpr HotKeyCombo first{2, 0x100};  // D with Command
constexpr HotKeyCombo second{3, 0x100}; // F with Command
constexpr KeyPress firstPress{2, modifier::command};
constexpr KeyPress secondPress{3, modifier::command};

class GlobalShortcutTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakeAccessibilityRight right{log};
    FakeEventTaps taps{log};
    int triggers = 0;
    GlobalShortcut shortcut{{right, taps, queue}, [this] {
                                ++triggers;
                            }};
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
    taps.refuse(TapFailure{});
    shortcut.change(first);
    EXPECT_EQ(shortcut.activity(), Activity::Unavailable);
}

} // namespace
} // namespace quorvane
