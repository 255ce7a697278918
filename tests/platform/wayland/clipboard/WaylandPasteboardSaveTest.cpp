// SPDX-License-Identifier: MIT
#include "PasteboardFixture.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using SaveOfThePasteboard = PasteboardFixture;

constexpr Seconds silence{0.3};

TEST_P(SaveOfThePasteboard, IsEmptyWhereNothingWasCopied) {
    EXPECT_EQ(saved(), PasteboardContents{});
}

TEST_P(SaveOfThePasteboard, HasEveryTypeInTheOwnersOrder) {
    const QByteArray picture(3'000'000, '\x89');
    m_clipboard.copy(
        {{"image/png", picture},
         {"application/x-own", "\0\1"_ba},
         {"text/plain", "noon"},
         {"text/html", "<b>noon</b>"}});
    const auto contents = saved();
    ASSERT_THAT(contents.items, SizeIs(1));
    EXPECT_THAT(
        contents.items.front(),
        ElementsAre(
            PasteboardEntry{u"image/png"_s, picture, {}},
            PasteboardEntry{u"application/x-own"_s, "\0\1"_ba, {}},
            PasteboardEntry{u"text/plain"_s, "noon", {}},
            PasteboardEntry{u"text/html"_s, "<b>noon</b>", {}}));
    EXPECT_EQ(contents.selection, std::nullopt);
    EXPECT_FALSE(contents.isPassing);
}

TEST_P(SaveOfThePasteboard, CallsBackInALaterIteration) {
    startSave();
    EXPECT_FALSE(m_saved.has_value());
    static_cast<void>(outcome());
}

TEST_P(SaveOfThePasteboard, HasWhatWasCopiedBeforeWeAreToldOfIt) {
    m_clipboard.copy({{"text/plain", "first"}});
    catchUp();
    m_clipboard.copy({{"text/plain", "second"}});
    const auto contents = saved();
    ASSERT_THAT(contents.items, SizeIs(1));
    EXPECT_EQ(contents.items.front().front().bytes, "second");
}

TEST_P(SaveOfThePasteboard, HasThePrimarySelectionWhereTheTextPassesThroughIt) {
    m_clipboard.copy({{"text/plain", "copied"}});
    m_clipboard.copy({{"text/plain", "marked"}}, Kind::Primary);
    const auto contents = saved(PasteSource::Selection);
    ASSERT_THAT(contents.items, SizeIs(1));
    EXPECT_EQ(contents.items.front().front().bytes, "copied");
    EXPECT_THAT(
        contents.selection.value_or(PasteboardItem{}),
        ElementsAre(PasteboardEntry{u"text/plain"_s, "marked", {}}));
}

TEST_P(SaveOfThePasteboard, CutsOffAnOwnerThatIsSilent) {
    m_clipboard.copy({{"image/png", "never", ForeignAnswer::Nothing}, {"text/plain", "noon"}});
    startSave();
    // The text comes first; then the picture's owner says nothing.
    catchUp();
    EXPECT_TRUE(waitUntil([this] {
        m_queue.advance(Seconds(0.01));
        return m_saved.has_value();
    }));
    ASSERT_THAT(m_saved->items, SizeIs(1));
    EXPECT_THAT(m_saved->items.front(), ElementsAre(PasteboardEntry{u"text/plain"_s, "noon", {}}));
}

TEST_P(SaveOfThePasteboard, EndsAfterASecondWhereAnOwnerWritesWithoutAnEnd) {
    m_clipboard.copy(
        {{"text/plain", "noon"}, {"image/png", QByteArray(4096, 'x'), ForeignAnswer::Endless}});
    startSave();
    for (int i = 0; i < 9; ++i) {
        // More than the pipe holds: we have read since.
        const auto before = m_clipboard.writers().written();
        EXPECT_TRUE(waitUntil([&] { return m_clipboard.writers().written() > before + 200'000; }));
        m_queue.advance(Seconds(0.1));
        EXPECT_FALSE(m_saved.has_value());
    }
    m_queue.advance(Seconds(0.1));
    ASSERT_TRUE(m_saved.has_value());
    ASSERT_THAT(m_saved->items, SizeIs(1));
    EXPECT_THAT(m_saved->items.front(), ElementsAre(PasteboardEntry{u"text/plain"_s, "noon", {}}));
    EXPECT_TRUE(waitUntil([this] { return m_clipboard.writers().brokenPipes() == 1; }));
}

TEST_P(SaveOfThePasteboard, TakesTheFirstOfTooManyTypes) {
    ForeignContents contents;
    for (int i = 0; i < 1'000; ++i)
        contents.push_back({"application/x-" + std::to_string(i), "x"});
    m_clipboard.copy(contents);
    const auto found = saved();
    ASSERT_THAT(found.items, SizeIs(1));
    EXPECT_THAT(found.items.front(), SizeIs(256));
}

TEST_P(SaveOfThePasteboard, AsksForNothingThatIsAnOrder) {
    m_clipboard.copy({{"DELETE", "gone"}, {"TARGETS", "all"}, {"text/plain", "noon"}});
    const auto contents = saved();
    ASSERT_THAT(contents.items, SizeIs(1));
    EXPECT_THAT(contents.items.front(), ElementsAre(PasteboardEntry{u"text/plain"_s, "noon", {}}));
}

TEST_P(SaveOfThePasteboard, IsOfWhatIsCopiedMeanwhile) {
    m_clipboard.copy({{"text/plain", "old", ForeignAnswer::Nothing}});
    startSave();
    catchUp();
    turnOnce();
    m_clipboard.copy({{"text/plain", "new"}});
    catchUp();
    m_queue.advance(silence);
    const auto contents = outcome();
    ASSERT_THAT(contents.items, SizeIs(1));
    EXPECT_EQ(contents.items.front().front().bytes, "new");
}

TEST_P(SaveOfThePasteboard, ReadsNothingFromOurselves) {
    ASSERT_EQ(put(u"ours"_s, TextStay::Lasting), PutOutcome::Taken);
    const auto contents = saved();
    ASSERT_THAT(contents.items, SizeIs(1));
    EXPECT_EQ(contents.items.front().front().bytes, "ours");
    EXPECT_EQ(m_clipboard.readingsOfItself(), 0);
    EXPECT_FALSE(contents.isPassing);
}

TEST_P(SaveOfThePasteboard, KnowsThePassingTextAndItsCopyByAManager) {
    pass(u"passing"_s);
    EXPECT_TRUE(saved().isPassing);
    m_clipboard.copy({{"text/plain;charset=utf-8", "passing"}});
    EXPECT_TRUE(saved().isPassing);
    m_clipboard.copy({{"text/plain;charset=utf-8", "something else"}});
    EXPECT_FALSE(saved().isPassing);
}

TEST_P(SaveOfThePasteboard, IsAnsweredByACompositorThatHasGone) {
    m_clipboard.copy({{"text/plain", "noon"}});
    catchUp();
    m_compositor.stop();
    ASSERT_TRUE(waitUntil([this] { return m_losses == 1; }));
    startSave();
    m_queue.advance(silence);
    EXPECT_EQ(outcome(), PasteboardContents{});
    EXPECT_EQ(put(u"noon"_s, TextStay::Lasting), PutOutcome::Refused);
}

TEST_P(SaveOfThePasteboard, IsAnsweredByACompositorThatHangs) {
    m_clipboard.copy({{"text/plain", "noon"}});
    catchUp();
    m_compositor.hang();
    startSave();
    m_queue.advance(Seconds(1));
    EXPECT_TRUE(m_saved.has_value());
    m_compositor.resume();
}

TEST_P(SaveOfThePasteboard, IsEmptyWhenTheSeatHasGone) {
    m_clipboard.copy({{"text/plain", "noon"}});
    catchUp();
    m_clipboard.removeSeat();
    catchUp();
    EXPECT_EQ(saved(), PasteboardContents{});
    EXPECT_EQ(put(u"noon"_s, TextStay::Lasting), PutOutcome::Refused);
}

INSTANTIATE_TEST_SUITE_P(
    ,
    SaveOfThePasteboard,
    testing::Values(TestClipboard::Protocol::Ext, TestClipboard::Protocol::Wlr));

} // namespace
} // namespace quorvane
