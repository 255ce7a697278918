// SPDX-License-Identifier: MIT
#include <delivery/TextInserter.h>
#include <testing/CallLog.h>
#include <testing/CapturedLog.h>
#include <testing/FakeAccessibilityRight.h>
#include <testing/FakeKeyPoster.h>
#include <testing/FakePasteboard.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

#include <memory>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Calls = std::vector<CallLog::Call>;

const std::string pasteKeys = "paste";

class TextInserterTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakeAccessibilityRight right{log};
    FakePasteboard pasteboard{log, queue};
    FakeKeyPoster poster{log};
    std::unique_ptr<TextInserter> inserter = std::make_unique<TextInserter>(
        TextInserter::Dependencies{right, pasteboard, poster, queue});
};

TEST_F(TextInserterTest, SavesPutsPostsAndRestoresInOrder) {
    pasteboard.setContents(plainText(u"mine"_s));
    inserter->insert(u"text"_s);
    queue.advance(1s);
    EXPECT_EQ(
        log.calls(),
        (Calls{
            {0ms, "isTrusted"},
            {0ms, "save"},
            {0ms, "clear"},
            {0ms, "setString passing \"text\""},
            {0ms, pasteKeys},
            {600ms, "restore"}}));
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(TextInserterTest, TextStandsOnThePasteboardUntilTheRestore) {
    pasteboard.setContents(plainText(u"mine"_s));
    inserter->insert(u"text"_s);
    queue.advance(599ms);
    EXPECT_EQ(pasteboard.contents(), plainText(u"text"_s));
    queue.advance(1ms);
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
}

TEST_F(TextInserterTest, EmptyPasteboardIsLeftEmpty) {
    inserter->insert(u"text"_s);
    queue.advance(1s);
    EXPECT_EQ(pasteboard.contents(), PasteboardContents());
    EXPECT_EQ(log.calls().back(), (CallLog::Call{600ms, "restore"}));
}

TEST_F(TextInserterTest, SeveralItemsComeBackAsOneWithTheTypesOfAll) {
    const auto files = u"text/uri-list"_s;
    const auto text = u"text/plain"_s;
    pasteboard.setContents(
        {{{pasteboardEntry(files, "file:///a"), pasteboardEntry(text, "a")},
          {pasteboardEntry(files, "file:///b")}},
         std::nullopt});
    inserter->insert(u"text"_s);
    queue.advance(1s);
    const PasteboardItem merged{pasteboardEntry(files, "file:///b"), pasteboardEntry(text, "a")};
    EXPECT_EQ(pasteboard.contents(), (PasteboardContents{{merged}, std::nullopt}));
}

TEST_F(TextInserterTest, WithoutTheRightItTouchesNothingAndAsksNobody) {
    right.setTrusted(false);
    pasteboard.setContents(plainText(u"mine"_s));
    inserter->insert(u"text"_s);
    queue.advance(1s);
    EXPECT_EQ(log.calls(), (Calls{{0ms, "isTrusted"}}));
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
}

TEST_F(TextInserterTest, EmptyTextIsInsertedAllTheSame) {
    pasteboard.setContents(plainText(u"mine"_s));
    inserter->insert(QString());
    queue.run();
    EXPECT_EQ(pasteboard.contents(), plainText(QString()));
    EXPECT_EQ(log.calls().back().what, pasteKeys);
    queue.advance(600ms);
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
}

TEST_F(TextInserterTest, KeysThatCannotBePostedChangeNothingElse) {
    for (const auto outcome : {PostOutcome::NoSuchKey, PostOutcome::Unavailable}) {
        poster.setOutcome(outcome);
        pasteboard.setContents(plainText(u"mine"_s));
        inserter->insert(u"text"_s);
        queue.run();
        EXPECT_EQ(pasteboard.contents(), plainText(u"text"_s));
        queue.advance(600ms);
        EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
    }
}

TEST_F(TextInserterTest, PostsTheKeysOfTheTargetThatItFoundAtFirst) {
    constexpr PasteTarget terminal{PasteKeys::ShiftInsert, PasteSource::Selection};
    poster.setPasteTarget(terminal);
    pasteboard.setSaveDelay(300ms);
    inserter->insert(u"text"_s);
    poster.setPasteTarget({});
    queue.advance(300ms);
    EXPECT_EQ(poster.posted(), terminal);
}

TEST_F(TextInserterTest, SlowOwnerDelaysTheTextButNotItsStay) {
    pasteboard.setContents(plainText(u"mine"_s));
    pasteboard.setSaveDelay(300ms);
    inserter->insert(u"text"_s);
    queue.advance(2s);
    EXPECT_EQ(
        log.calls(),
        (Calls{
            {0ms, "isTrusted"},
            {0ms, "save"},
            {300ms, "clear"},
            {300ms, "setString passing \"text\""},
            {300ms, pasteKeys},
            {900ms, "restore"}}));
}

TEST_F(TextInserterTest, InsertionWaitsForTheKeysOfTheOneBefore) {
    pasteboard.setContents(plainText(u"mine"_s));
    pasteboard.setSaveDelay(300ms);
    inserter->insert(u"first"_s);
    queue.advance(100ms);
    inserter->insert(u"second"_s);
    queue.advance(2s);
    EXPECT_EQ(
        log.calls(),
        (Calls{
            {0ms, "isTrusted"},
            {0ms, "save"},
            {100ms, "isTrusted"},
            {300ms, "clear"},
            {300ms, "setString passing \"first\""},
            {300ms, pasteKeys},
            {300ms, "save"},
            {600ms, "clear"},
            {600ms, "setString passing \"second\""},
            {600ms, pasteKeys},
            {1200ms, "restore"}}));
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(TextInserterTest, KeysThatGoOutOneByOneKeepTheTextAndTheNextInsertionWaiting) {
    pasteboard.setContents(plainText(u"mine"_s));
    poster.setTakesTime();
    inserter->insert(u"first"_s);
    inserter->insert(u"second"_s);
    queue.advance(700ms);
    EXPECT_EQ(pasteboard.contents(), plainText(u"first"_s));
    poster.finishPaste();
    queue.run();
    EXPECT_EQ(pasteboard.contents(), plainText(u"second"_s));
    poster.finishPaste();
    queue.advance(599ms);
    EXPECT_EQ(pasteboard.contents(), plainText(u"second"_s));
    queue.advance(1ms);
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(TextInserterTest, TheEndInTheMiddleOfTheKeysGivesThePasteboardBackAtOnce) {
    pasteboard.setContents(plainText(u"mine"_s));
    poster.setTakesTime();
    inserter->insert(u"text"_s);
    queue.run();
    inserter->finish([] {});
    queue.run();
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
    poster.finishPaste();
    queue.run();
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(TextInserterTest, TellsWhatBecameOfEachInsertion) {
    std::vector<InsertionOutcome> outcomes;
    const auto insert = [&] {
        inserter->insert(
            u"text"_s, [&outcomes](InsertionOutcome outcome) { outcomes.push_back(outcome); });
        queue.run();
    };
    insert();
    pasteboard.setRefusing(true);
    insert();
    pasteboard.setRefusing(false);
    poster.setOutcome(PostOutcome::NoSuchKey);
    insert();
    right.setTrusted(false);
    insert();
    EXPECT_EQ(
        outcomes,
        (std::vector{
            InsertionOutcome::Posted,
            InsertionOutcome::NotTaken,
            InsertionOutcome::NoKeys,
            InsertionOutcome::NoRight}));
}

TEST_F(TextInserterTest, TextThatThePasteboardDoesNotTakeIsNotPasted) {
    pasteboard.setContents(plainText(u"theirs"_s));
    pasteboard.setRefusing(true);
    inserter->insert(u"text"_s);
    queue.advance(1s);
    EXPECT_EQ(
        log.calls(),
        (Calls{
            {0ms, "isTrusted"},
            {0ms, "save"},
            {0ms, "clear"},
            {0ms, "setString passing \"text\""},
            {0ms, "restore"}}));
    EXPECT_EQ(pasteboard.contents(), plainText(u"theirs"_s));
}

TEST_F(TextInserterTest, SecondPasteboardIsGivenBackToo) {
    const PasteboardItem marked{pasteboardEntry(u"text/plain"_s, "marked")};
    const PasteboardContents before{{}, marked};
    pasteboard.setContents(before);
    poster.setPasteTarget({PasteKeys::ShiftInsert, PasteSource::Selection});
    inserter->insert(u"text"_s);
    queue.run();
    EXPECT_EQ(pasteboard.contents().selection, plainText(u"text"_s).items.front());
    queue.advance(1s);
    EXPECT_EQ(pasteboard.contents(), before);
}

TEST_F(TextInserterTest, SecondPasteboardIsLeftAloneWhereTheWindowDoesNotPasteFromIt) {
    const PasteboardItem marked{pasteboardEntry(u"text/plain"_s, "marked")};
    pasteboard.setContents({{}, marked});
    inserter->insert(u"text"_s);
    queue.run();
    EXPECT_EQ(pasteboard.contents().selection, marked);
    queue.advance(1s);
    EXPECT_EQ(pasteboard.contents().selection, marked);
}

TEST_F(TextInserterTest, FinishRestoresAtOnceAndOnlyOnce) {
    pasteboard.setContents(plainText(u"mine"_s));
    inserter->insert(u"text"_s);
    queue.advance(100ms);
    bool isDone = false;
    inserter->finish([&isDone] { isDone = true; });
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
    const auto calls = log.calls().size();
    queue.run();
    EXPECT_TRUE(isDone);
    queue.advance(1s);
    EXPECT_EQ(log.calls().size(), calls);
}

TEST_F(TextInserterTest, FinishGivesUpAnInsertionThatIsStillSaving) {
    pasteboard.setContents(plainText(u"mine"_s));
    pasteboard.setSaveDelay(300ms);
    inserter->insert(u"text"_s);
    inserter->insert(u"next"_s);
    bool isDone = false;
    inserter->finish([&isDone] { isDone = true; });
    queue.advance(1s);
    EXPECT_TRUE(isDone);
    EXPECT_EQ(log.calls(), (Calls{{0ms, "isTrusted"}, {0ms, "save"}, {0ms, "isTrusted"}}));
}

TEST_F(TextInserterTest, FinishAmidASecondInsertionGivesBackWhatTheFirstHadSaved) {
    pasteboard.setContents(plainText(u"mine"_s));
    inserter->insert(u"first"_s);
    queue.run();
    pasteboard.setSaveDelay(300ms);
    inserter->insert(u"second"_s);
    queue.advance(100ms);
    inserter->finish([] {});
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
    queue.advance(1s);
    EXPECT_EQ(pasteboard.contents(), plainText(u"mine"_s));
}

TEST_F(TextInserterTest, InserterThatIsGoneTouchesNothing) {
    inserter->insert(u"text"_s);
    inserter.reset();
    queue.advance(1s);
    EXPECT_EQ(log.calls(), (Calls{{0ms, "isTrusted"}, {0ms, "save"}}));
}

TEST_F(TextInserterTest, LogTellsTypesAndSizesButNoContents) {
    const CapturedLog messages(u"quorvane.insert"_s);
    const PasteboardItem marked{pasteboardEntry(u"UTF8_STRING"_s, "marked words")};
    pasteboard.setContents(
        {{{pasteboardEntry(u"text/plain"_s, "private"), pasteboardEntry(u"image/png"_s, "pixels")}},
         marked});
    poster.setPasteTarget({PasteKeys::ShiftInsert, PasteSource::Selection});
    inserter->insert(u"2024-03-10"_s);
    queue.advance(1s);
    EXPECT_EQ(
        messages.lines(),
        (QStringList{
            u"saved: text/plain (7 bytes), image/png (6 bytes)"_s,
            u"saved, selection: UTF8_STRING (12 bytes)"_s,
            u"put back: text/plain (7 bytes), image/png (6 bytes)"_s,
            u"put back, selection: UTF8_STRING (12 bytes)"_s}));
}

TEST_F(TextInserterTest, LogTellsThatThereWasNothingToSave) {
    const CapturedLog messages(u"quorvane.insert"_s);
    inserter->insert(u"2024-03-10"_s);
    queue.advance(1s);
    EXPECT_EQ(messages.lines(), (QStringList{u"saved: nothing"_s, u"put back: nothing"_s}));
}

} // namespace
} // namespace quorvane
