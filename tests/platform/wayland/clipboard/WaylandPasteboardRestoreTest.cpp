// SPDX-License-Identifier: MIT
#include "PasteboardFixture.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

using RestoreOfThePasteboard = PasteboardFixture;

PasteboardItem picture() {
    return {{u"image/png"_s, QByteArray(200'000, 'p'), {}}, {u"text/html"_s, "<i>p</i>", {}}};
}

TEST_P(RestoreOfThePasteboard, BringsEveryTypeBackInItsOrder) {
    pass(u"passing"_s);
    restore(picture());
    EXPECT_THAT(m_clipboard.types(), ElementsAre("image/png", "text/html"));
    EXPECT_EQ(pasted("image/png"), QByteArray(200'000, 'p'));
    EXPECT_EQ(pasted("text/html"), "<i>p</i>");
}

TEST_P(RestoreOfThePasteboard, LeavesThePasteboardEmptyWhereItWas) {
    pass(u"passing"_s);
    restore({});
    EXPECT_THAT(m_clipboard.types(), IsEmpty());
}

TEST_P(RestoreOfThePasteboard, KeepsThePasswordsHint) {
    const PasteboardItem password{
        {u"text/plain"_s, "pass", {}}, {u"x-kde-passwordManagerHint"_s, "secret", {}}};
    pass(u"passing"_s);
    restore(password);
    EXPECT_THAT(m_clipboard.types(), ElementsAre("text/plain", "x-kde-passwordManagerHint"));
}

TEST_P(RestoreOfThePasteboard, LeavesWhatSomebodyHasCopied) {
    pass(u"passing"_s);
    m_clipboard.copy({{"text/plain", "the user's"}});
    restore(picture());
    EXPECT_THAT(m_clipboard.types(), ElementsAre("text/plain"));
}

TEST_P(RestoreOfThePasteboard, LeavesWhatSomebodyHasCopiedWithoutOurBeingTold) {
    pass(u"passing"_s);
    m_clipboard.copy({{"image/png", "the user's"}});
    restore(picture());
    EXPECT_THAT(m_clipboard.types(), ElementsAre("image/png"));
    EXPECT_EQ(m_clipboard.settings(), 1);
}

TEST_P(RestoreOfThePasteboard, ReplacesTheCopyOfAManager) {
    pass(u"passing"_s);
    m_clipboard.copy({{"text/plain;charset=utf-8", "passing"}});
    restore(picture());
    EXPECT_THAT(m_clipboard.types(), ElementsAre("image/png", "text/html"));
}

TEST_P(RestoreOfThePasteboard, LeavesWhatIsOfAnOwnerThatDoesNotAnswer) {
    pass(u"passing"_s);
    m_clipboard.copy({{"text/plain", "passing", ForeignAnswer::Nothing}});
    catchUp();
    m_restoring = m_pasteboard.restore(picture(), std::nullopt, [this] { m_isRestored = true; });
    EXPECT_TRUE(waitUntil([this] {
        m_queue.advance(Seconds(0.01));
        return m_isRestored;
    }));
    EXPECT_THAT(m_clipboard.types(), ElementsAre("text/plain"));
}

TEST_P(RestoreOfThePasteboard, IsCalledOffByACopyOfOurs) {
    pass(u"passing"_s);
    ASSERT_EQ(put(u"copied"_s, TextStay::Lasting), PutOutcome::Taken);
    restore(picture());
    EXPECT_EQ(pasted("text/plain"), "copied");
}

TEST_P(RestoreOfThePasteboard, IsCalledOffForGoodByACopyOfSomebody) {
    pass(u"passing"_s);
    m_clipboard.copy({{"text/plain", "the user's"}});
    restore(picture());
    m_clipboard.copy({{"text/plain", "passing"}});
    restore(picture());
    EXPECT_THAT(m_clipboard.types(), ElementsAre("text/plain"));
}

TEST_P(RestoreOfThePasteboard, DecidesForEitherSelectionByItself) {
    pass(u"passing"_s, PasteSource::Selection);
    m_clipboard.copy({{"text/html", "marked"}}, Kind::Primary);
    restore(picture(), PasteboardItem{{u"text/plain"_s, "was marked", {}}});
    EXPECT_THAT(m_clipboard.types(), ElementsAre("image/png", "text/html"));
    EXPECT_THAT(m_clipboard.types(Kind::Primary), ElementsAre("text/html"));
}

TEST_P(RestoreOfThePasteboard, BringsThePrimarySelectionBack) {
    pass(u"passing"_s, PasteSource::Selection);
    restore(picture(), PasteboardItem{{u"text/plain"_s, "was marked", {}}});
    EXPECT_EQ(pasted("text/plain", Kind::Primary), "was marked");
}

TEST_P(RestoreOfThePasteboard, IsOverWhereTheCompositorHasGone) {
    pass(u"passing"_s);
    m_compositor.stop();
    ASSERT_TRUE(waitUntil([this] { return m_losses == 1; }));
    m_restoring = m_pasteboard.restore(picture(), std::nullopt, [this] { m_isRestored = true; });
    m_queue.advance(Seconds(0.3));
    EXPECT_TRUE(m_isRestored);
}

INSTANTIATE_TEST_SUITE_P(
    ,
    RestoreOfThePasteboard,
    testing::Values(TestClipboard::Protocol::Ext, TestClipboard::Protocol::Wlr));

} // namespace
} // namespace quorvane
