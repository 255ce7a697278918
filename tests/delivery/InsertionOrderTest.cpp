// SPDX-License-Identifier: MIT
#include <delivery/CopyText.h>
#include <delivery/TextInserter.h>
#include <testing/CallLog.h>
#include <testing/FakeAccessibilityRight.h>
#include <testing/FakeKeyPoster.h>
#include <testing/FakePasteboard.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const auto hint = u"x-kde-passwordManagerHint"_s;

/// Insertions with other events between the text and the restore, for a window that pastes from the
/// clipboard and for one that pastes from the second pasteboard.
class InsertionOrderTest : public testing::TestWithParam<PasteSource> {
protected:
    InsertionOrderTest() {
        poster.setPasteTarget({PasteKeys::ShiftInsert, GetParam()});
        copyElsewhere(u"mine"_s);
    }

    /// Another program copies, and the user marks it too.
    void copyElsewhere(const QString& text) { copyElsewhere(plainText(text).items.front()); }

    void copyElsewhere(const PasteboardItem& item) { pasteboard.setContents({{item}, item}); }

    void copyHere(const QString& text) { EXPECT_EQ(copyText(pasteboard, text), PutOutcome::Taken); }

    void insert(const QString& text) {
        inserter.insert(text);
        queue.run();
        EXPECT_EQ(onBoard(), plainText(text).items.front());
    }

    /// What stands on the pasteboard that the window pastes from.
    [[nodiscard]] PasteboardItem onBoard() const {
        const auto contents = pasteboard.contents();
        if (GetParam() == PasteSource::Selection)
            return contents.selection.value_or(PasteboardItem{});
        return contents.items.empty() ? PasteboardItem{} : contents.items.front();
    }

    void expectBoth(const QString& text) const {
        const auto item = plainText(text).items.front();
        EXPECT_EQ(pasteboard.contents(), (PasteboardContents{{item}, item}));
    }

    VirtualMainQueue queue;
    CallLog log{queue};
    FakeAccessibilityRight right{log};
    FakePasteboard pasteboard{log, queue};
    FakeKeyPoster poster{log};
    TextInserter inserter{{right, pasteboard, poster, queue}};
};

INSTANTIATE_TEST_SUITE_P(
    ,
    InsertionOrderTest,
    testing::Values(PasteSource::Clipboard, PasteSource::Selection),
    [](const auto& one) {
        return one.param == PasteSource::Clipboard ? "Clipboard" : "Selection";
    });

TEST_P(InsertionOrderTest, SecondInsertionTakesOverWhatTheFirstHadSaved) {
    insert(u"first"_s);
    queue.advance(300ms);
    insert(u"second"_s);
    queue.advance(599ms);
    EXPECT_EQ(onBoard(), plainText(u"second"_s).items.front());
    queue.advance(1ms);
    expectBoth(u"mine"_s);
    EXPECT_TRUE(queue.isIdle());
}

TEST_P(InsertionOrderTest, AnyNumberOfInsertionsTakeOver) {
    for (int i = 0; i < 5; ++i) {
        insert(QString::number(i));
        queue.advance(500ms);
    }
    queue.advance(1s);
    expectBoth(u"mine"_s);
}

TEST_P(InsertionOrderTest, SecondInsertionAfterTheRestoreSavesAnew) {
    insert(u"first"_s);
    queue.advance(600ms);
    copyElsewhere(u"newer"_s);
    insert(u"second"_s);
    queue.advance(1s);
    expectBoth(u"newer"_s);
}

TEST_P(InsertionOrderTest, CopyElsewhereIsNotOverwritten) {
    insert(u"text"_s);
    queue.advance(150ms);
    copyElsewhere(u"newer"_s);
    queue.advance(2s);
    expectBoth(u"newer"_s);
}

TEST_P(InsertionOrderTest, CopyOfAProgramThatDoesNotAnswerIsNotOverwritten) {
    insert(u"text"_s);
    copyElsewhere(u"newer"_s);
    pasteboard.setOthersAnswer(false);
    queue.advance(2s);
    expectBoth(u"newer"_s);
}

TEST_P(InsertionOrderTest, SecondInsertionGivesBackWhatWasCopiedElsewhereMeanwhile) {
    insert(u"first"_s);
    copyElsewhere(u"newer"_s);
    insert(u"second"_s);
    queue.advance(2s);
    expectBoth(u"newer"_s);
}

TEST_P(InsertionOrderTest, CopyHereStays) {
    insert(u"text"_s);
    queue.advance(150ms);
    copyHere(u"copied"_s);
    queue.advance(2s);
    EXPECT_EQ(pasteboard.contents().items, plainText(u"copied"_s).items);
    // What the user has marked has nothing to do with the copy.
    EXPECT_EQ(pasteboard.contents().selection, plainText(u"mine"_s).items.front());
}

TEST_P(InsertionOrderTest, CopyHereWhileTheClipboardIsBeingSavedComesBack) {
    pasteboard.setOthersAnswer(false);
    inserter.insert(u"text"_s);
    queue.advance(100ms);
    copyHere(u"copied"_s);
    queue.advance(2s);
    EXPECT_EQ(pasteboard.contents().items, plainText(u"copied"_s).items);
}

TEST_P(InsertionOrderTest, CopyOfTheVeryTextThatWasInsertedStays) {
    insert(u"text"_s);
    copyHere(u"text"_s);
    insert(u"text"_s);
    queue.advance(2s);
    EXPECT_EQ(pasteboard.contents().items, plainText(u"text"_s).items);
}

TEST_P(InsertionOrderTest, SecondInsertionGivesBackWhatWasCopiedHereMeanwhile) {
    insert(u"first"_s);
    copyHere(u"copied"_s);
    insert(u"second"_s);
    queue.advance(2s);
    EXPECT_EQ(pasteboard.contents().items, plainText(u"copied"_s).items);
}

TEST_P(InsertionOrderTest, CopyOfAClipboardManagerIsRestoredOver) {
    insert(u"text"_s);
    pasteboard.takeOverByManager();
    queue.advance(600ms);
    expectBoth(u"mine"_s);
}

TEST_P(InsertionOrderTest, SecondInsertionTakesOverFromAClipboardManager) {
    insert(u"first"_s);
    pasteboard.takeOverByManager();
    insert(u"second"_s);
    pasteboard.takeOverByManager();
    queue.advance(2s);
    expectBoth(u"mine"_s);
}

TEST_P(InsertionOrderTest, InsertionWhileAManagerIsAskedTakesOverToo) {
    insert(u"first"_s);
    pasteboard.takeOverByManager();
    pasteboard.setOthersAnswer(false);
    queue.advance(700ms); // the restore has asked, and not been answered
    pasteboard.setOthersAnswer(true);
    insert(u"second"_s);
    queue.advance(2s);
    expectBoth(u"mine"_s);
}

TEST_P(InsertionOrderTest, PasswordComesBackWithItsHint) {
    const PasteboardItem password{
        pasteboardEntry(u"text/plain"_s, "hunter2"), pasteboardEntry(hint, "secret")};
    copyElsewhere(password);
    insert(u"first"_s);
    queue.advance(100ms);
    insert(u"second"_s);
    queue.advance(1s);
    EXPECT_EQ(pasteboard.contents(), (PasteboardContents{{password}, password}));
}

TEST_P(InsertionOrderTest, QuitGivesBackAtOnce) {
    insert(u"text"_s);
    inserter.finish([] {});
    expectBoth(u"mine"_s);
}

TEST_P(InsertionOrderTest, QuitAfterACopyLeavesTheCopy) {
    insert(u"text"_s);
    copyElsewhere(u"newer"_s);
    inserter.finish([] {});
    queue.advance(1s);
    expectBoth(u"newer"_s);
}

TEST_P(InsertionOrderTest, QuitWaitsForWhatAManagerHasTakenOver) {
    insert(u"text"_s);
    pasteboard.takeOverByManager();
    bool isDone = false;
    inserter.finish([&isDone] { isDone = true; });
    EXPECT_FALSE(isDone);
    queue.run();
    EXPECT_TRUE(isDone);
    expectBoth(u"mine"_s);
}

TEST_P(InsertionOrderTest, QuitWaitsNoLongerThanForTheAnswer) {
    insert(u"text"_s);
    copyElsewhere(u"newer"_s);
    pasteboard.setOthersAnswer(false);
    bool isDone = false;
    inserter.finish([&isDone] { isDone = true; });
    queue.advance(299ms);
    EXPECT_FALSE(isDone);
    queue.advance(1ms);
    EXPECT_TRUE(isDone);
}

TEST_P(InsertionOrderTest, SecondPasteboardComesBackAlsoAfterAnInsertionThatLeavesItAlone) {
    insert(u"first"_s);
    poster.setPasteTarget({PasteKeys::ControlV, PasteSource::Clipboard});
    inserter.insert(u"second"_s);
    queue.advance(1s);
    expectBoth(u"mine"_s);
}

} // namespace
} // namespace quorvane
