// SPDX-License-Identifier: MIT
#include "PasteboardFixture.h"

#include <unistd.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using OwnPasteboard = PasteboardFixture;

constexpr auto hint = "x-kde-passwordManagerHint";

TEST_P(OwnPasteboard, GivesACopiedTextToEverybody) {
    ASSERT_EQ(put(u"Mañana, 12:00"_s, TextStay::Lasting), PutOutcome::Taken);
    catchUp();
    EXPECT_THAT(
        m_clipboard.types(), ElementsAre("text/plain;charset=utf-8", "UTF8_STRING", "text/plain"));
    EXPECT_EQ(pasted("text/plain;charset=utf-8"), u"Mañana, 12:00"_s.toUtf8());
    EXPECT_EQ(pasted("text/plain"), u"Mañana, 12:00"_s.toUtf8());
}

TEST_P(OwnPasteboard, AsksHistoriesToLookAwayFromAPassingTextAlone) {
    pass(u"passing"_s);
    EXPECT_THAT(m_clipboard.types(), Contains(hint));
    EXPECT_EQ(pasted(hint), "secret");
    ASSERT_EQ(put(u"lasting"_s, TextStay::Lasting), PutOutcome::Taken);
    catchUp();
    EXPECT_THAT(m_clipboard.types(), Not(Contains(hint)));
}

TEST_P(OwnPasteboard, IsNotEmptiedBeforeATextThatFollowsAtOnce) {
    m_clipboard.copy({{"text/plain", "old"}});
    m_pasteboard.clear();
    pass(u"new"_s);
    EXPECT_EQ(m_clipboard.settings(), 1);
    EXPECT_EQ(pasted("text/plain"), "new");
}

TEST_P(OwnPasteboard, IsEmptiedWhereNoTextFollows) {
    m_clipboard.copy({{"text/plain", "old"}});
    m_pasteboard.clear();
    EXPECT_TRUE(waitUntil([this] { return m_clipboard.types().empty(); }));
}

TEST_P(OwnPasteboard, HasAPassingTextOnThePrimarySelectionToo) {
    pass(u"passing"_s, PasteSource::Selection);
    EXPECT_EQ(pasted("text/plain"), "passing");
    EXPECT_EQ(pasted("text/plain", Kind::Primary), "passing");
    ASSERT_EQ(put(u"lasting"_s, TextStay::Lasting, PasteSource::Selection), PutOutcome::Taken);
    catchUp();
    EXPECT_EQ(pasted("text/plain", Kind::Primary), "passing");
}

TEST_P(OwnPasteboard, GivesALongTextToAReaderThatTakesItsTime) {
    const QString longText(2'000'000, u'x');
    ASSERT_EQ(put(longText, TextStay::Lasting), PutOutcome::Taken);
    catchUp();
    EXPECT_EQ(pasted("text/plain").size(), 2'000'000);
}

// The default disposition of SIGPIPE would end this program.
TEST_P(OwnPasteboard, OutlivesReadersThatCloseEarly) {
    ASSERT_EQ(put(QString(2'000'000, u'x'), TextStay::Lasting), PutOutcome::Taken);
    catchUp();
    for (int i = 0; i < 10; ++i)
        ::close(m_clipboard.paste("text/plain"));
    EXPECT_EQ(pasted("text/plain").size(), 2'000'000);
}

TEST_P(OwnPasteboard, ServesOthersWhileReadersNeverRead) {
    ASSERT_EQ(put(QString(2'000'000, u'x'), TextStay::Lasting), PutOutcome::Taken);
    catchUp();
    std::vector<int> silent;
    for (int i = 0; i < 60; ++i)
        silent.push_back(m_clipboard.paste("text/plain"));
    EXPECT_EQ(pasted("text/plain").size(), 2'000'000);
    for (const int descriptor : silent)
        ::close(descriptor);
}

TEST_P(OwnPasteboard, RefusesMoreReadersThanItCanServeUntilTheyAreGivenUp) {
    ASSERT_EQ(put(QString(2'000'000, u'x'), TextStay::Lasting), PutOutcome::Taken);
    catchUp();
    std::vector<int> silent;
    for (std::size_t i = 0; i < PipeWriting::mostTransfers; ++i)
        silent.push_back(m_clipboard.paste("text/plain"));
    EXPECT_EQ(pasted("text/plain"), "");
    m_queue.advance(PipeWriting::longestSilence);
    EXPECT_EQ(pasted("text/plain").size(), 2'000'000);
    for (const int descriptor : silent)
        ::close(descriptor);
}

TEST_P(OwnPasteboard, GivesNothingForATypeThatItHasNot) {
    ASSERT_EQ(put(u"noon"_s, TextStay::Lasting), PutOutcome::Taken);
    catchUp();
    EXPECT_EQ(pasted("image/png"), "");
}

TEST_P(OwnPasteboard, GoesOnGivingWhatAnotherCopyHasReplaced) {
    ASSERT_EQ(put(QString(2'000'000, u'x'), TextStay::Lasting), PutOutcome::Taken);
    catchUp();
    const int descriptor = m_clipboard.paste("text/plain");
    catchUp();
    m_clipboard.copy({{"text/plain", "another"}});
    catchUp();
    qsizetype length = 0;
    std::array<char, 65'536> piece{};
    for (;;) {
        const auto count = readSome(descriptor, piece);
        if (count <= 0)
            break;
        length += count;
    }
    ::close(descriptor);
    EXPECT_EQ(length, 2'000'000);
}

INSTANTIATE_TEST_SUITE_P(
    , OwnPasteboard, testing::Values(TestClipboard::Protocol::Ext, TestClipboard::Protocol::Wlr));

} // namespace
} // namespace quorvane
