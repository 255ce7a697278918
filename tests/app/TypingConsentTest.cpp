// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <delivery/InsertionDelays.h>

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::Contains;
using testing::Not;

const RunningApplication editor{42, u"editor"_s};
const RunningApplication browser{43, u"browser"_s};

const std::string question = "prompt";
const std::string pasteKeys = "paste";

const auto noWindow = u"There was no window to type into. Paste with your usual keys."_s;
const auto noWayToType = u"This desktop does not let Quorvane type. Paste with your usual keys."_s;

/// A desktop that lets nobody type who has not asked for it in this run.
class TypingConsentTest : public DelegateFixture {
protected:
    TypingConsentTest() {
        right->setCanPrompt();
        right->setTyping(TypingRight::NotAsked);
        delegate->model().setFormatPreset(DateFormatPreset::UnixTimestamp);
    }

    /// In an earlier run.
    void hasAllowedTyping() { delegate->model().setWantsTyping(true); }

    void insertInto(const RunningApplication& application) {
        workspace->setFront(application);
        delegate->performInsert();
        queue.advance(1s);
    }

    /// The question is shown over the target, which comes back when it is answered.
    void answer(TypingRight typing) {
        right->setTyping(typing);
        queue.advance(1s);
    }

    [[nodiscard]] auto countOf(const std::string& call) const {
        return std::ranges::count(calls(), call);
    }

    void expectCopied(const QString& text, const QString& body) {
        EXPECT_EQ(pasteboard->contents(), plainText(text));
        EXPECT_EQ(countOf(pasteKeys), 0);
        ASSERT_TRUE(notifications->shown);
        EXPECT_EQ(notifications->shown->body, body);
    }
};

TEST_F(TypingConsentTest, NobodyIsAskedAtAStart) {
    hasAllowedTyping();
    launch();
    queue.advance(60s);
    pressShortcut();
    pressShortcut();
    EXPECT_THAT(calls(), Not(Contains(question)));
}

TEST_F(TypingConsentTest, WhoNeverChoseItIsNeverAsked) {
    launch();
    insertInto(editor);
    EXPECT_THAT(calls(), Not(Contains(question)));
    expectCopied(u"1710021900"_s, noWayToType);
    ASSERT_TRUE(notifications->shown->action);
    EXPECT_EQ(notifications->shown->action->label, u"Allow typing…"_s);
    notifications->shown->action->perform();
    EXPECT_TRUE(isShown(preferences()));
    EXPECT_THAT(calls(), Not(Contains(question)));
}

TEST_F(TypingConsentTest, ChoosingItAsksAndIsRemembered) {
    launch();
    delegate->allowTyping();
    EXPECT_EQ(countOf(question), 1);
    EXPECT_TRUE(defaults.boolForKey(u"allowTyping"_s));
    answer(TypingRight::Granted);
    insertInto(editor);
    EXPECT_EQ(countOf(pasteKeys), 1);
    EXPECT_EQ(countOf(question), 1);
}

TEST_F(TypingConsentTest, FirstInsertionOfARunAsksAndTypesIntoTheTargetThatIsInFrontAgain) {
    hasAllowedTyping();
    launch();
    pasteboard->setContents(plainText(u"mine"_s));
    insertInto(editor);
    EXPECT_EQ(countOf(question), 1);
    EXPECT_EQ(countOf(pasteKeys), 0);
    EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
    right->setTyping(TypingRight::Granted);
    const auto pause = insertiondelay::beforeActivation + insertiondelay::beforePaste;
    queue.advance(pause - Seconds(0.001));
    EXPECT_EQ(countOf(pasteKeys), 0);
    queue.advance(Seconds(0.001));
    EXPECT_EQ(countOf(pasteKeys), 1);
    EXPECT_EQ(pasteboard->contents(), plainText(u"1710021900"_s));
    queue.advance(1s);
    EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
    EXPECT_FALSE(notifications->shown);
}

TEST_F(TypingConsentTest, LaterInsertionsOfTheRunAskNobody) {
    hasAllowedTyping();
    launch();
    insertInto(editor);
    answer(TypingRight::Granted);
    insertInto(editor);
    EXPECT_EQ(countOf(question), 1);
    EXPECT_EQ(countOf(pasteKeys), 2);
}

TEST_F(TypingConsentTest, CopiesWhereTheUserHasGoneElsewhereMeanwhileAndBringsNothingToTheFront) {
    hasAllowedTyping();
    launch();
    insertInto(editor);
    workspace->setFront(browser);
    answer(TypingRight::Granted);
    expectCopied(u"1710021900"_s, noWindow);
    EXPECT_THAT(calls(), Not(Contains("activate editor")));
}

TEST_F(TypingConsentTest, TypesWhereTheDesktopCannotTellWhatIsInFront) {
    hasAllowedTyping();
    launch();
    delegate->performInsert();
    queue.advance(1s);
    answer(TypingRight::Granted);
    EXPECT_EQ(countOf(pasteKeys), 1);
}

TEST_F(TypingConsentTest, CopiesAfterARefusalAndAsksAgainOnlyWhenTheUserChoosesIt) {
    hasAllowedTyping();
    launch();
    insertInto(editor);
    answer(TypingRight::Refused);
    expectCopied(u"1710021900"_s, noWayToType);
    insertInto(editor);
    EXPECT_EQ(countOf(question), 1);
    delegate->allowTyping();
    EXPECT_EQ(countOf(question), 2);
}

TEST_F(TypingConsentTest, CopiesOnceTheRightIsTakenBackAndAsksNobody) {
    hasAllowedTyping();
    launch();
    insertInto(editor);
    answer(TypingRight::Granted);
    answer(TypingRight::Stopped);
    log.clear();
    insertInto(editor);
    expectCopied(u"1710021900"_s, noWayToType);
    EXPECT_THAT(calls(), Not(Contains(question)));
}

TEST_F(TypingConsentTest, WhatIsInsertedWhileTheQuestionIsOpenIsCopiedAtOnce) {
    hasAllowedTyping();
    launch();
    insertInto(editor);
    delegate->model().setStartDate({7});
    workspace->setFront(browser);
    delegate->performInsert();
    queue.run();
    expectCopied(u"7"_s, noWayToType);
    workspace->setFront(editor);
    right->setTyping(TypingRight::Granted);
    queue.advance(300ms);
    EXPECT_EQ(countOf(pasteKeys), 1);
    EXPECT_EQ(pasteboard->contents(), plainText(u"1710021900"_s));
    queue.advance(1s);
    EXPECT_EQ(pasteboard->contents(), plainText(u"7"_s));
}

TEST_F(TypingConsentTest, WhatIsInsertedWhileTheUserAnswersThePreferencesQuestionIsCopied) {
    launch();
    delegate->allowTyping();
    insertInto(editor);
    expectCopied(u"1710021900"_s, noWayToType);
    answer(TypingRight::Granted);
    EXPECT_EQ(countOf(pasteKeys), 0);
}

TEST_F(TypingConsentTest, QuitWhileTheQuestionIsOpenTypesNothing) {
    hasAllowedTyping();
    launch();
    pasteboard->setContents(plainText(u"mine"_s));
    insertInto(editor);
    delegate->terminate();
    answer(TypingRight::Granted);
    EXPECT_EQ(countOf(pasteKeys), 0);
    EXPECT_EQ(pasteboard->contents(), plainText(u"mine"_s));
}

} // namespace
} // namespace quorvane
