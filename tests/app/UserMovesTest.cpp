// SPDX-License-Identifier: MIT
#include "UserMoves.h"

#include "WindowActivation.h"

#include <testing/CallLog.h>
#include <testing/FakeWindowTraits.h>
#include <testing/VirtualMainQueue.h>

#include <QWidget>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace std::chrono_literals;
using Cause = UserMoves::Cause;

constexpr HeldInput nothing;

class UserMovesTest : public testing::Test {
protected:
    void show() {
        window.show();
        makeActive(window);
    }

    VirtualMainQueue queue;
    CallLog log{queue};
    FakeWindowTraits traits{log};
    QWidget window;
    UserMoves moves{window, queue, traits};
};

TEST_F(UserMovesTest, ChangeWhileTheWindowIsMappedIsTheWindowManagers) {
    show();
    EXPECT_EQ(moves.causeOfChange(), Cause::WindowManager);
    queue.advance(400ms);
    EXPECT_EQ(moves.causeOfChange(), Cause::WindowManager);
    EXPECT_FALSE(moves.hasSettled());
}

TEST_F(UserMovesTest, ChangeIsTheUsersOnceTheWindowHasStoodStillForHalfASecond) {
    show();
    queue.advance(499ms);
    EXPECT_EQ(moves.causeOfChange(), Cause::WindowManager);
    queue.advance(500ms);
    EXPECT_TRUE(moves.hasSettled());
    EXPECT_EQ(moves.causeOfChange(), Cause::User);
}

TEST_F(UserMovesTest, WindowWithoutTheFocusDoesNotSettle) {
    window.show();
    queue.advance(10s);
    EXPECT_EQ(moves.causeOfChange(), Cause::WindowManager);
    makeActive(window);
    queue.advance(500ms);
    EXPECT_EQ(moves.causeOfChange(), Cause::User);
}

TEST_F(UserMovesTest, EachShowBeginsAnew) {
    show();
    queue.advance(1s);
    window.hide();
    show();
    EXPECT_EQ(moves.causeOfChange(), Cause::WindowManager);
}

TEST_F(UserMovesTest, ChangeUnderAPressedButtonOrKeyIsTheUsers) {
    for (const auto& held : {HeldInput{{}, 1}, HeldInput{{64, 113}, 0}}) {
        window.hide();
        show();
        traits.held = held;
        EXPECT_EQ(moves.causeOfChange(), Cause::User);
        traits.held = nothing;
    }
}

TEST_F(UserMovesTest, KeysThatShowedTheWindowCountForNothing) {
    traits.held = HeldInput{{37, 40, 50, 133}, 1};
    show();
    EXPECT_EQ(moves.causeOfChange(), Cause::WindowManager);
    traits.held = HeldInput{{37, 50}, 1};
    EXPECT_EQ(moves.causeOfChange(), Cause::WindowManager);
    traits.held = HeldInput{{37, 50, 113}, 1};
    EXPECT_EQ(moves.causeOfChange(), Cause::User);
}

TEST_F(UserMovesTest, DesktopThatDoesNotTellWhatIsHeldLeavesStandingStill) {
    traits.held.reset();
    show();
    EXPECT_EQ(moves.causeOfChange(), Cause::WindowManager);
    queue.advance(500ms);
    EXPECT_EQ(moves.causeOfChange(), Cause::User);
}

TEST_F(UserMovesTest, LastStepOfAMoveMayComeAfterTheRelease) {
    show();
    traits.held = HeldInput{{}, 1};
    EXPECT_EQ(moves.causeOfChange(), Cause::User);
    traits.held = nothing;
    queue.advance(400ms);
    EXPECT_EQ(moves.causeOfChange(), Cause::User);
}

TEST_F(UserMovesTest, MoveThatBeganInTheWindowIsTheUsers) {
    show();
    moves.begin();
    moves.noteRequest();
    EXPECT_EQ(moves.causeOfChange(), Cause::User);
}

TEST_F(UserMovesTest, AnswerToARequestIsNotTheUsersEvenWhileTheUserTypes) {
    show();
    queue.advance(1s);
    moves.noteRequest();
    traits.held = HeldInput{{38}, 0};
    EXPECT_EQ(moves.causeOfChange(), Cause::WindowManager);
    traits.held = nothing;
    queue.advance(500ms);
    EXPECT_EQ(moves.causeOfChange(), Cause::User);
}

} // namespace
} // namespace quorvane
