// SPDX-License-Identifier: MIT
#include "PasteboardFixture.h"

#include <unistd.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class TextOfThePasteboard : public PasteboardFixture {
protected:
    std::optional<QString> text(PasteSource source = PasteSource::Clipboard) {
        catchUp();
        return answer(m_pasteboard.readText(source, taking()));
    }

    Pasteboard::TextHandler taking() {
        m_isAnswered = false;
        return [this](std::optional<QString> found) {
            m_isAnswered = true;
            m_text = std::move(found);
        };
    }

    std::optional<QString> answer(const std::unique_ptr<PasteboardRequest>& /*request*/) {
        EXPECT_TRUE(waitUntil([this] { return m_isAnswered; }));
        return m_text;
    }

    bool m_isAnswered = false;
    std::optional<QString> m_text;
};

TEST_P(TextOfThePasteboard, IsTheBestThatTheOwnerOffers) {
    m_clipboard.copy(
        {{"text/plain", "plain"}, {"text/plain;charset=utf-8", "b\xc3\xa4st"}, {"text/html", "x"}});
    EXPECT_EQ(text(), u"bäst"_s);
}

TEST_P(TextOfThePasteboard, IsNoneWhereThereIsNone) {
    EXPECT_EQ(text(), std::nullopt);
    m_clipboard.copy({{"image/png", "x"}});
    EXPECT_EQ(text(), std::nullopt);
}

TEST_P(TextOfThePasteboard, IsOurOwnWithoutAQuestion) {
    ASSERT_EQ(put(u"ours"_s, TextStay::Lasting), PutOutcome::Taken);
    EXPECT_EQ(text(), u"ours"_s);
    EXPECT_EQ(m_clipboard.readingsOfItself(), 0);
}

TEST_P(TextOfThePasteboard, IsTheMarkedOneOfThePrimarySelection) {
    m_clipboard.copy({{"text/plain", "marked"}}, Kind::Primary);
    EXPECT_EQ(text(PasteSource::Selection), u"marked"_s);
}

TEST_P(TextOfThePasteboard, IsNoneWhereItIsTooLong) {
    m_clipboard.copy({{"text/plain", QByteArray(Pasteboard::longestText, 'x')}});
    EXPECT_EQ(text().value_or(QString()).size(), Pasteboard::longestText);
    m_clipboard.copy({{"text/plain", QByteArray(Pasteboard::longestText + 1, 'x')}});
    EXPECT_EQ(text(), std::nullopt);
}

TEST_P(TextOfThePasteboard, IsNoneOfAnOwnerThatIsSilent) {
    m_clipboard.copy({{"text/plain", "x", ForeignAnswer::Nothing}});
    catchUp();
    const auto request = m_pasteboard.readText(PasteSource::Clipboard, taking());
    EXPECT_TRUE(waitUntil([this] {
        m_queue.advance(Seconds(0.01));
        return m_isAnswered;
    }));
    EXPECT_EQ(m_text, std::nullopt);
}

TEST_P(TextOfThePasteboard, IsNoneWhileItIsDragged) {
    EXPECT_EQ(answer(m_pasteboard.readDraggedText(taking())), std::nullopt);
}

TEST_P(TextOfThePasteboard, IsNotToldToWhoHasGivenUp) {
    m_clipboard.copy({{"text/plain", "noon"}});
    catchUp();
    static_cast<void>(m_pasteboard.readText(PasteSource::Clipboard, taking()));
    turnOnce();
    catchUp();
    turnOnce();
    EXPECT_FALSE(m_isAnswered);
}

TEST_P(TextOfThePasteboard, IsWaitedForAtTheEndWhileSomebodyStillTakesIt) {
    ASSERT_EQ(put(QString(2'000'000, u'x'), TextStay::Lasting), PutOutcome::Taken);
    catchUp();
    const int reader = m_clipboard.paste("text/plain");
    turnOnce();
    bool isOver = false;
    m_pasteboard.handOver([&] { isOver = true; });
    m_queue.advance(Seconds(0.9));
    EXPECT_FALSE(isOver);
    m_queue.advance(Seconds(0.1));
    EXPECT_TRUE(isOver);
    ::close(reader);
}

TEST_P(TextOfThePasteboard, IsNotHandedOverWhereItIsNotForHistories) {
    pass(u"passing"_s);
    bool isOver = false;
    m_pasteboard.handOver([&] { isOver = true; });
    EXPECT_TRUE(waitUntil([&] { return isOver; }));
}

INSTANTIATE_TEST_SUITE_P(
    ,
    TextOfThePasteboard,
    testing::Values(TestClipboard::Protocol::Ext, TestClipboard::Protocol::Wlr));

} // namespace
} // namespace quorvane
