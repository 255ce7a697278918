// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <delivery/InsertionDelays.h>

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

class InsertionTest : public DelegateFixture {};

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
            Call{start + activation, "activate editor"},
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

TEST_F(InsertionTest, WithNothingRememberedTheKeysGoToTheFocusedApplication) {
    launch();
    log.clear();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::Not(testing::Contains(testing::StartsWith("activate"))));
    EXPECT_THAT(calls(), testing::Contains(pasteKeys));
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

TEST_F(InsertionTest, ApplicationThatCannotBeActivatedStopsNoInsertion) {
    showOver(editor);
    workspace->loseWindows();
    delegate->performInsert();
    queue.advance(1s);
    EXPECT_THAT(calls(), testing::IsSupersetOf({std::string("activate editor"), pasteKeys}));
}

} // namespace
} // namespace quorvane
