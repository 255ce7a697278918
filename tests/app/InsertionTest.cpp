// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <delivery/InsertionDelays.h>
#include <testing/CapturedLog.h>

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using std::chrono::milliseconds;
using testing::ElementsAre;

using Call = CallLog::Call;

const RunningApplication editor{42, u"editor"_s};
const std::string pasteKeys = "paste";

// Since the request.
const auto activation = std::chrono::round<milliseconds>(insertiondelay::beforeActivation);
const auto paste = activation + std::chrono::round<milliseconds>(insertiondelay::beforePaste);
const auto restore = paste + std::chrono::round<milliseconds>(insertiondelay::beforeRestore);

const RunningApplication browser{43, u"browser"_s};

const auto noWindow = u"There was no window to type into. Paste with your usual keys."_s;
const auto noWayToType = u"This desktop does not let Quorvane type. Paste with your usual keys."_s;

class InsertionTest : public DelegateFixture {
protected:
    /// Over contents of the user's, which the text replaces for good.
    void copiesInstead(const QString& body) {
        pasteboard->setContents(plainText(u"mine"_s));
        delegate->performInsert();
        queue.advance(paste - 1ms);
        EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
        queue.advance(2s);
        EXPECT_THAT(calls(), testing::Not(testing::Contains(pasteKeys)));
        expectCopied(body);
    }

    /// Without waiting for the target: some clipboards take a text only from who has the keyboard.
    void copiesAtOnce(const QString& body) {
        pasteboard->setContents(plainText(u"mine"_s));
        delegate->performInsert();
        EXPECT_EQ(pasteboard->contents(), plainText(delegate->model().formattedOutput()));
        queue.advance(2s);
        EXPECT_THAT(calls(), testing::Not(testing::Contains(pasteKeys)));
        expectCopied(body);
    }

    void expectCopied(const QString& body) {
        EXPECT_EQ(pasteboard->contents(), plainText(delegate->model().formattedOutput()));
        EXPECT_THAT(calls(), testing::Contains(testing::StartsWith("setString lasting")));
        ASSERT_TRUE(notifications->shown);
        EXPECT_EQ(notifications->shown->title, u"Copied instead"_s);
        EXPECT_EQ(notifications->shown->body, body);
    }
};

TEST(InsertionDelays, HaveTheirValues) {
    EXPECT_EQ(insertiondelay::beforeActivation, Seconds{0.08});
    EXPECT_EQ(insertiondelay::beforePaste, Seconds{0.12});
    EXPECT_EQ(insertiondelay::beforeRestore, Seconds{0.6});
}

TEST_F(InsertionTest, KeepsItsTimesAndTheOrderOfItsCalls) {
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
            Call{start, "frontmostApplication"},
            Call{start, "isTrusted"},
            Call{start + activation, "activate editor"},
            Call{start + paste, "receivesKeys editor"},
            Call{start + paste, "isTrusted"},
            Call{start + paste, "save"},
            Call{start + paste, "clear"},
            Call{start + paste, "setString passing \"1710021900\""},
            Call{start + paste, pasteKeys},
            Call{start + restore, "restore"}));
    EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
}

TEST_F(InsertionTest, TextIsComposedWhenTheInsertionStarts) {
    showOver(editor);
    delegate->model().setFormatPreset(DateFormatPreset::UnixTimestamp);
    delegate->performInsert();
    delegate->model().setStartDate({0});
    queue.advance(paste);
    EXPECT_EQ(pasteboard->contents(), plainText(u"1710021900"_s));
}

TEST_F(InsertionTest, WhereTheDesktopCannotTellTheKeysGoToTheFocusedApplication) {
    launch();
    log.clear();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::Not(testing::Contains(testing::StartsWith("activate"))));
    EXPECT_THAT(calls(), testing::Not(testing::Contains(testing::StartsWith("receivesKeys"))));
    EXPECT_THAT(calls(), testing::Contains(pasteKeys));
}

TEST_F(InsertionTest, WhereTheDesktopIsNotCertainItsGuessIsActivatedAndNotChecked) {
    showOver(editor);
    workspace->setFrontUncertain();
    workspace->ignoreActivation();
    workspace->takeKeyboard();
    log.clear();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::IsSupersetOf({std::string("activate editor"), pasteKeys}));
    EXPECT_FALSE(notifications->shown);
}

TEST_F(InsertionTest, WorksBeforeThePanelIsMade) {
    makeDelegate();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(log.calls(), testing::Contains(Call{paste, pasteKeys}));
}

TEST_F(InsertionTest, EmptyOutputIsInserted) {
    showOver(editor);
    delegate->model().setSelectedTimeZones({});
    log.clear();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::Contains("setString passing \"\""));
}

TEST_F(InsertionTest, SecondOneTakesOverWhatTheFirstHadSaved) {
    showOver(editor);
    pasteboard->setContents(plainText(u"mine"_s));
    delegate->model().setFormatPreset(DateFormatPreset::UnixTimestamp);
    delegate->performInsert();
    queue.advance(paste + 100ms);
    delegate->performInsert();
    queue.advance(2s);
    EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
    EXPECT_EQ(std::ranges::count(calls(), pasteKeys), 2);
}

TEST_F(InsertionTest, QuitRestoresThePasteboardFirst) {
    showOver(editor);
    pasteboard->setContents(plainText(u"mine"_s));
    delegate->performInsert();
    queue.advance(paste + 100ms);
    log.clear();
    delegate->terminate();
    queue.run();
    EXPECT_THAT(calls(), ElementsAre("restore", "handOver"));
    EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
}

TEST_F(InsertionTest, QuitBeforeThePasteLeavesThePasteboardAlone) {
    showOver(editor);
    delegate->performInsert();
    queue.advance(activation + 20ms);
    log.clear();
    delegate->terminate();
    delegate->terminate();
    queue.run();
    EXPECT_THAT(calls(), ElementsAre("handOver"));
}

TEST_F(InsertionTest, GoesWhereTheUserWorksWhileThePanelFloats) {
    showOver(editor);
    workspace->setFront(browser);
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::IsSupersetOf({std::string("activate browser"), pasteKeys}));
    EXPECT_THAT(calls(), testing::Not(testing::Contains("activate editor")));
}

TEST_F(InsertionTest, WhileTheInterfaceIsHiddenItGoesToWhatIsInFrontThen) {
    showOver(editor);
    pressShortcut();
    workspace->setFront(browser);
    delegate->performAction(u"insert"_s);
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::Contains("activate browser"));
    EXPECT_THAT(calls(), testing::Not(testing::Contains("activate editor")));
}

TEST_F(InsertionTest, CopiesInsteadWhereNothingIsInFront) {
    showOver(editor);
    workspace->close(editor);
    copiesInstead(noWindow);
    EXPECT_THAT(calls(), testing::Not(testing::Contains("activate editor")));
}

TEST_F(InsertionTest, CopiesInsteadWhereTheTargetGoesBeforeItIsActivated) {
    showOver(editor);
    pasteboard->setContents(plainText(u"mine"_s));
    delegate->performInsert();
    queue.advance(activation - 10ms);
    workspace->close(editor);
    queue.advance(1s);
    expectCopied(noWindow);
}

TEST_F(InsertionTest, CopiesInsteadWhereTheTargetDoesNotComeToTheFront) {
    showOver(editor);
    workspace->ignoreActivation();
    workspace->setActive(browser);
    copiesInstead(noWindow);
}

TEST_F(InsertionTest, CopiesInsteadWhileAScreenLockHasTheKeyboard) {
    showOver(editor);
    workspace->takeKeyboard();
    copiesInstead(noWindow);
}

TEST_F(InsertionTest, CopiesInsteadWithoutTheRightAndAsksNobody) {
    showOver(editor);
    right->setTrusted(false);
    copiesAtOnce(noWayToType);
    EXPECT_THAT(calls(), testing::Not(testing::Contains("prompt")));
    EXPECT_FALSE(notifications->shown->action);
}

TEST_F(InsertionTest, CopiesInsteadWithoutKeysThatWouldDo) {
    showOver(editor);
    keyPoster->setOutcome(PostOutcome::Unavailable);
    pasteboard->setContents(plainText(u"mine"_s));
    delegate->performInsert();
    queue.advance(paste + 100ms);
    expectCopied(noWayToType);
}

TEST_F(InsertionTest, WhereTheRightCanBeGivenTheNotificationLeadsToThePreferences) {
    showOver(editor);
    right->setTrusted(false);
    right->setCanPrompt();
    copiesAtOnce(noWayToType);
    ASSERT_TRUE(notifications->shown->action);
    EXPECT_EQ(notifications->shown->action->label, u"Allow typing…"_s);
    notifications->shown->action->perform();
    EXPECT_TRUE(isShown(preferences()));
}

TEST_F(InsertionTest, SecondOneWaitsForTheKeysOfTheFirstAndCarriesTheTextOfItsMoment) {
    showOver(editor);
    delegate->model().setFormatPreset(DateFormatPreset::UnixTimestamp);
    const auto start = elapsed();
    log.clear();
    delegate->performInsert();
    queue.advance(20ms);
    delegate->model().setStartDate({7});
    delegate->performInsert();
    delegate->model().setStartDate({8});
    queue.advance(2s);
    EXPECT_THAT(
        log.calls(),
        testing::IsSupersetOf(
            {Call{start + paste, "setString passing \"1710021900\""},
             Call{start + 2 * paste, "setString passing \"7\""}}));
}

TEST_F(InsertionTest, FloodLeavesOneUnderWayAndOneThatWaits) {
    showOver(editor);
    const CapturedLog messages(u"quorvane.insert"_s);
    for (int request = 0; request < 100; ++request)
        delegate->performAction(u"insert"_s);
    queue.advance(5s);
    EXPECT_EQ(std::ranges::count(calls(), pasteKeys), 2);
    EXPECT_EQ(messages.lines().filter(u"dropped"_s).size(), 98);
}

} // namespace
} // namespace quorvane
