// SPDX-License-Identifier: MIT
#include "PresentationFixture.h"
#include "SleepingQueue.h"

#include <delivery/InsertionDelays.h>
#include <entry/TimeField.h>

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::Contains;

const RunningApplication editor{42, u"editor"_s};
const std::string pasteKeys = "paste";

const auto beforePaste = insertiondelay::beforeActivation;
const auto afterPaste = beforePaste + insertiondelay::beforePaste + 100ms;

/// What a machine or a user does with a program that is left alone, and what its clocks show then.
enum class Pause {
    Suspended, ///< the machine sleeps: the clock that measures delays stands still
    Stopped,   ///< only the program does, or the machine is one in another: all delays have passed
};

/// A delegate that does not run all the time.
class RestedDelegate : public PresentationFixture {
protected:
    RestedDelegate() {
        delegate.reset();
        delegate = std::make_unique<AppDelegate>(AppDelegate::Dependencies{
            clock,
            defaults,
            frames(),
            currentZone,
            zones,
            UserLocale::named(u"en_US"_s),
            sleeping,
            platform});
    }

    void rest(Pause pause, Seconds span) {
        clock.set(clock.now() + span);
        if (pause == Pause::Stopped)
            sleeping.sleep(span);
        timeChanges->change();
        queue.run();
    }

    void passTime(Seconds span) {
        clock.set(clock.now() + span);
        queue.advance(span);
    }

    /// Over the editor, with the user's own text on the clipboard.
    void beginInsertion() {
        showOver(editor);
        pasteboard->setContents(plainText(u"mine"_s));
        log.clear();
        delegate->performInsert();
    }

    void expectInsertedOnce() {
        EXPECT_THAT(calls(), Contains(pasteKeys).Times(1));
        EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
        EXPECT_FALSE(notifications->shown);
    }

    SleepingQueue sleeping{queue};
};

class SuspendTest : public RestedDelegate, public testing::WithParamInterface<Pause> {};

TEST_P(SuspendTest, BeforeTheKeysATextIsStillTypedOnce) {
    beginInsertion();
    queue.advance(beforePaste);
    rest(GetParam(), 8h);
    queue.advance(1s);
    expectInsertedOnce();
}

TEST_P(SuspendTest, AfterTheKeysTheClipboardComesBack) {
    beginInsertion();
    queue.advance(afterPaste);
    EXPECT_NE(pasteboard->contents(), plainText(u"mine"_s));
    rest(GetParam(), 8h);
    queue.advance(1s);
    expectInsertedOnce();
}

TEST_P(SuspendTest, TheNextShowingBeginsWithThatMoment) {
    launch();
    pressShortcut();
    rest(GetParam(), 9h);
    pressShortcut();
    // The night has lost an hour meanwhile.
    EXPECT_EQ(panel()->findChild<TimeField*>()->text(), u"03:05 AM"_s);
}

TEST_P(SuspendTest, WhatIsShownStaysAsItWasEntered) {
    launch();
    rest(GetParam(), 9h);
    EXPECT_EQ(panel()->findChild<TimeField*>()->text(), u"05:05 PM"_s);
    EXPECT_EQ(delegate->model().startDate(), Instant{1710021900});
}

TEST_P(SuspendTest, AShortcutThatWasHeldWorksAgain) {
    launch();
    EXPECT_EQ(taps->press(shortcut), TapVerdict::Swallow);
    queue.run();
    EXPECT_FALSE(isShown(panel()));
    rest(GetParam(), 8h);
    passTime(1s);
    pressShortcut();
    EXPECT_TRUE(isShown(panel()));
}

TEST_P(SuspendTest, AMonthIsNoMoreWorkThanAMoment) {
    launch();
    passTime(1min);
    const int before = sleeping.ran();
    rest(GetParam(), 30 * 24h);
    passTime(1min);
    EXPECT_LE(sleeping.ran() - before, 5);
}

INSTANTIATE_TEST_SUITE_P(
    Pauses,
    SuspendTest,
    testing::Values(Pause::Suspended, Pause::Stopped),
    [](const testing::TestParamInfo<Pause>& pause) {
        return pause.param == Pause::Suspended ? "OfTheMachine" : "OfTheProgram";
    });

using IdleTest = RestedDelegate;

TEST_F(IdleTest, ADayOfRestIsOneMidnight) {
    launch();
    for (const bool isHidden : {false, true}) {
        if (isHidden)
            pressShortcut();
        passTime(1min);
        const int before = sleeping.ran();
        for (int minute = 0; minute < 24 * 60; ++minute)
            passTime(1min);
        EXPECT_LE(sleeping.ran() - before, 3) << isHidden;
    }
}

TEST_F(IdleTest, ADayOfRestAsksTheDesktopForNothing) {
    launch();
    pressShortcut();
    passTime(1min);
    log.clear();
    passTime(24h);
    EXPECT_THAT(calls(), testing::IsEmpty());
}

} // namespace
} // namespace quorvane
