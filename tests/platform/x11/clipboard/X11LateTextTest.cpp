// SPDX-License-Identifier: MIT
#include "ForeignReader.h"
#include "PasteboardTest.h"

#include <x11_server/X11ServerClock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const auto utf8 = u"UTF8_STRING"_s;

/// A program that is too busy to paste before the text is taken back.
class X11LateTextTest : public PasteboardTest {
protected:
    X11LateTextTest() {
        m_window.takeFocus();
        startTextAndRestore({{utf8, "mine"_ba, utf8}});
    }

    /// With the paste keys between the two, by the server's time.
    void startTextAndRestore(const PasteboardItem& item) {
        m_timeBefore = laterTime();
        EXPECT_NE(laterTime(), m_timeBefore);
        pass(u"12:30"_s);
        m_timeOfKeys = laterTime();
        EXPECT_NE(laterTime(), m_timeOfKeys);
        if (m_isFetchedInTime) {
            EXPECT_EQ(m_reader.read(utf8), "12:30"_ba);
        }
        restore(item);
    }

    /// Later than everything so far.
    [[nodiscard]] xcb_timestamp_t laterTime() const {
        const auto now = m_clock.now();
        EXPECT_TRUE(waitUntil([&] { return m_clock.now() != now; }));
        return m_clock.now();
    }

    ForeignWindow m_window;
    ForeignReader m_reader{m_window, clipboardSelection};
    X11ServerClock m_clock{m_connection};
    bool m_isFetchedInTime = false;
    xcb_timestamp_t m_timeBefore = 0;
    xcb_timestamp_t m_timeOfKeys = 0;
};

TEST_F(X11LateTextTest, BusyClientGetsTheTextOnce) {
    EXPECT_EQ(m_reader.read(utf8), "12:30"_ba);
    EXPECT_EQ(m_reader.read(utf8), "mine"_ba);
}

TEST_F(X11LateTextTest, OthersGetTheRestoredContents) {
    EXPECT_EQ(contentsOf().front().bytes, "mine"_ba);
    EXPECT_EQ(m_reader.read(utf8), "12:30"_ba);
}

TEST_F(X11LateTextTest, ClientThatHasFetchedItInTimeGetsTheRestoredContents) {
    m_isFetchedInTime = true;
    startTextAndRestore({{utf8, "mine"_ba, utf8}});
    EXPECT_EQ(m_reader.read(utf8), "mine"_ba);
}

TEST_F(X11LateTextTest, QuestionForTheTargetsIsAnsweredForTheTextAndDoesNotCount) {
    const auto targets = m_reader.read(u"TARGETS"_s).value_or(QByteArray());
    const auto plain = m_connection->atom("text/plain");
    EXPECT_TRUE(targets.contains(
        QByteArray::fromRawData(reinterpret_cast<const char*>(&plain), sizeof plain)));
    EXPECT_EQ(m_reader.read(utf8), "12:30"_ba);
    EXPECT_FALSE(m_reader.read(u"text/plain"_s).has_value());
}

TEST_F(X11LateTextTest, RequestWithoutATimeIsServedForThreeSeconds) {
    m_queue.advance(Seconds(2.999));
    EXPECT_EQ(m_reader.read(utf8), "12:30"_ba);
    startTextAndRestore({{utf8, "mine"_ba, utf8}});
    m_queue.advance(Seconds(3));
    EXPECT_EQ(m_reader.read(utf8), "mine"_ba);
}

TEST_F(X11LateTextTest, LaterRequestIsServedForThreeSeconds) {
    EXPECT_EQ(m_reader.read(utf8, laterTime()), "12:30"_ba);
    startTextAndRestore({{utf8, "mine"_ba, utf8}});
    m_queue.advance(Seconds(3));
    EXPECT_EQ(m_reader.read(utf8, laterTime()), "mine"_ba);
}

TEST_F(X11LateTextTest, RequestOfTheTimeOfTheKeysIsServedForTenSeconds) {
    m_queue.advance(Seconds(9.999));
    EXPECT_EQ(m_reader.read(utf8, m_timeOfKeys), "12:30"_ba);
    startTextAndRestore({{utf8, "mine"_ba, utf8}});
    m_queue.advance(Seconds(10));
    EXPECT_EQ(m_reader.read(utf8, m_timeOfKeys), std::nullopt);
}

TEST_F(X11LateTextTest, RequestForWhatStoodThereBeforeTheTextIsRefusedAndDoesNotCount) {
    EXPECT_EQ(m_reader.read(utf8, m_timeBefore), std::nullopt);
    EXPECT_EQ(m_reader.read(utf8, m_timeOfKeys), "12:30"_ba);
}

TEST_F(X11LateTextTest, CopyEndsIt) {
    copy(u"copied"_s);
    EXPECT_EQ(m_reader.read(utf8), "copied"_ba);
}

TEST_F(X11LateTextTest, NewInsertionEndsIt) {
    pass(u"13:00"_s);
    EXPECT_EQ(m_reader.read(utf8), "13:00"_ba);
}

TEST_F(X11LateTextTest, NewOwnerEndsIt) {
    const auto owner = startOwner({textOffer("theirs")});
    EXPECT_EQ(m_reader.read(utf8), "theirs"_ba);
    giveBack({{utf8, "mine"_ba, utf8}});
    EXPECT_EQ(m_reader.read(utf8), "mine"_ba);
}

TEST_F(X11LateTextTest, ClipboardThatWasEmptyIsEmptyAgainOnceTheTextIsFetched) {
    startTextAndRestore({});
    EXPECT_EQ(contentsOf(), PasteboardItem{});
    EXPECT_EQ(m_reader.read(utf8), "12:30"_ba);
    EXPECT_FALSE(readAs(u"owned"_s).toBool());
    startTextAndRestore({});
    m_queue.advance(Seconds(10));
    EXPECT_FALSE(readAs(u"owned"_s).toBool());
}

TEST_F(X11LateTextTest, AfterAManagersCopyOnlyRequestsOfTheTimeOfTheKeysAreServed) {
    pass(u"12:30"_s);
    m_timeOfKeys = laterTime();
    const auto manager = startOwner({textOffer("12:30")});
    restore({{utf8, "mine"_ba, utf8}});
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_EQ(m_reader.read(utf8), "mine"_ba) << "it may have fetched the text from the manager";
    EXPECT_EQ(m_reader.read(utf8, m_timeOfKeys), "12:30"_ba);
}

TEST_F(X11LateTextTest, PrimaryHasItsOwn) {
    m_source = PasteSource::Selection;
    pass(u"12:30"_s);
    const PasteboardItem mine{{utf8, "mine"_ba, utf8}};
    restore(mine, mine);
    EXPECT_EQ(m_reader.read(utf8), "mine"_ba) << "the keys paste from PRIMARY";
    ForeignReader terminal(m_window, primarySelection);
    EXPECT_EQ(terminal.read(utf8), "12:30"_ba);
    EXPECT_EQ(terminal.read(utf8), "mine"_ba);
}

} // namespace
} // namespace quorvane
