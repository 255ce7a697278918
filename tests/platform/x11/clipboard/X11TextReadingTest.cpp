// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class X11TextReadingTest : public PasteboardTest {
protected:
    void startReading() {
        m_text.reset();
        m_reading = m_pasteboard.readText(
            m_source, [this](std::optional<QString> text) { m_text = std::move(text); });
    }

    /// None where there is no text.
    [[nodiscard]] std::optional<QString> text() {
        startReading();
        EXPECT_FALSE(m_text.has_value()) << "not in a later event-loop iteration";
        EXPECT_TRUE(waitUntil([this] { return m_text.has_value(); }));
        return m_text.value_or(std::nullopt);
    }

    std::optional<std::optional<QString>> m_text;
    std::unique_ptr<PasteboardRequest> m_reading;
};

TEST_F(X11TextReadingTest, ReadsTheTextOfAnotherProgram) {
    const auto owner = startOwner({textOffer("gr\xC3\xBC\xC3\x9F\n")});
    EXPECT_EQ(text(), u"gr\u00FC\u00DF\n"_s);
}

TEST_F(X11TextReadingTest, ReadsWhatTheUserHasMarked) {
    const auto owner = startOwner({textOffer("marked")}, {.selection = primarySelection});
    m_source = PasteSource::Selection;
    EXPECT_EQ(text(), u"marked"_s);
}

TEST_F(X11TextReadingTest, TakesTheOlderNamesOfTextToo) {
    const auto owner = startOwner({{{u"STRING"_s, "caf\xE9"_ba, u"STRING"_s}}});
    EXPECT_EQ(text(), u"caf\u00E9"_s);
}

TEST_F(X11TextReadingTest, ReadsWhatWeOwnOurselves) {
    copy(u"ours"_s);
    EXPECT_EQ(text(), u"ours"_s);
}

TEST_F(X11TextReadingTest, ThereIsNoTextInAnEmptyClipboardNorInAPicture) {
    EXPECT_EQ(text(), std::nullopt);
    const auto owner = startOwner({{{u"image/png"_s, "png"_ba, u"image/png"_s}}});
    EXPECT_EQ(text(), std::nullopt);
}

TEST_F(X11TextReadingTest, SilentOwnerIsCutOff) {
    const ForeignWindow taciturn;
    takeSelection(taciturn, m_connection->atom("CLIPBOARD"));
    startReading();
    m_queue.advance(Seconds(0.299));
    EXPECT_FALSE(m_text.has_value());
    m_queue.advance(Seconds(0.001));
    ASSERT_TRUE(m_text.has_value());
    EXPECT_EQ(*m_text, std::nullopt);
}

TEST_F(X11TextReadingTest, OwnerThatGoesOnAndOnIsCutOffAfterASecond) {
    const Offer endless{{u"UTF8_STRING"_s, noise(800), u"UTF8_STRING"_s}, u"dripping"_s};
    const auto owner = startOwner({endless});
    startReading();
    ASSERT_EQ(owner->nextReport(), u"UTF8_STRING"_s);
    for (int i = 0; i < 4; ++i) {
        ASSERT_EQ(owner->nextReport(), u"taken"_s);
        m_queue.advance(Seconds(0.2));
        EXPECT_FALSE(m_text.has_value());
        owner->proceed();
    }
    ASSERT_EQ(owner->nextReport(), u"taken"_s);
    m_queue.advance(Seconds(0.2));
    ASSERT_TRUE(m_text.has_value());
    EXPECT_EQ(*m_text, std::nullopt);
}

TEST_F(X11TextReadingTest, LongestTextIsReadAndALongerOneIsNone) {
    const QByteArray longest(Pasteboard::longestText, 'x');
    for (const auto& manner : {u"plain"_s, u"incremental"_s}) {
        const auto owner =
            startOwner({{{u"UTF8_STRING"_s, longest, u"UTF8_STRING"_s}, u"incremental"_s}});
        EXPECT_TRUE(text() == QString::fromUtf8(longest));
        const auto other =
            startOwner({{{u"UTF8_STRING"_s, longest + 'x', u"UTF8_STRING"_s}, manner}});
        EXPECT_EQ(text(), std::nullopt);
    }
}

TEST_F(X11TextReadingTest, ReadingThatIsGivenUpCallsNobody) {
    const auto owner = startOwner({textOffer("theirs")});
    startReading();
    m_reading.reset();
    EXPECT_EQ(savedItem(), itemOf({textOffer("theirs")}));
    EXPECT_FALSE(m_text.has_value());
}

} // namespace
} // namespace quorvane
