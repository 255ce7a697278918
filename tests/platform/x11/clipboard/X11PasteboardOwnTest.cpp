// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"

#include <xcb/xfixes.h>

#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

using X11PasteboardOwnTest = PasteboardTest;

const auto hint = u"x-kde-passwordManagerHint"_s;

TEST_F(X11PasteboardOwnTest, OffersATextUnderTheNamesOfPlainText) {
    copy(u"caf\u00E9"_s);
    const auto utf8 = "caf\xC3\xA9"_ba;
    const auto latin1 = "caf\xE9"_ba;
    const PasteboardItem expected{
        {u"UTF8_STRING"_s, utf8, u"UTF8_STRING"_s},
        {u"text/plain;charset=utf-8"_s, utf8, u"text/plain;charset=utf-8"_s},
        {u"text/plain"_s, utf8, u"text/plain"_s},
        {u"STRING"_s, latin1, u"STRING"_s},
        {u"TEXT"_s, latin1, u"STRING"_s},
    };
    EXPECT_EQ(contentsOf(), expected);
}

TEST_F(X11PasteboardOwnTest, OffersNoLatin1ThatWouldLoseCharacters) {
    copy(u"3\u202FPM \U0001F552"_s);
    const auto utf8 = "3\xE2\x80\xAFPM \xF0\x9F\x95\x92"_ba;
    const PasteboardItem expected{
        {u"UTF8_STRING"_s, utf8, u"UTF8_STRING"_s},
        {u"text/plain;charset=utf-8"_s, utf8, u"text/plain;charset=utf-8"_s},
        {u"text/plain"_s, utf8, u"text/plain"_s},
        {u"TEXT"_s, utf8, u"UTF8_STRING"_s},
    };
    EXPECT_EQ(contentsOf(), expected);
}

TEST_F(X11PasteboardOwnTest, OffersAnEmptyText) {
    pass(QString());
    const auto contents = contentsOf();
    ASSERT_FALSE(contents.empty());
    EXPECT_EQ(contents.front(), (PasteboardEntry{u"UTF8_STRING"_s, ""_ba, u"UTF8_STRING"_s}));
}

TEST_F(X11PasteboardOwnTest, APassingTextAsksHistoriesToLeaveItAlone) {
    pass(u"text"_s);
    const auto contents = contentsOf();
    ASSERT_FALSE(contents.empty());
    EXPECT_EQ(contents.back(), (PasteboardEntry{hint, "secret"_ba, hint}));
}

TEST_F(X11PasteboardOwnTest, ALastingTextDoesNot) {
    copy(u"text"_s);
    EXPECT_FALSE(typesOf(contentsOf()).contains(hint));
}

TEST_F(X11PasteboardOwnTest, NamesItsTargetsInTheItemsOrderBehindTheQuestions) {
    giveBack({{u"b"_s, "1"_ba, u"b"_s}, {u"a"_s, "2"_ba, u"a"_s}});
    EXPECT_EQ(
        readAs(u"names"_s).toVariant().toStringList(),
        (QStringList{u"TARGETS"_s, u"TIMESTAMP"_s, u"MULTIPLE"_s, u"b"_s, u"a"_s}));
}

TEST_F(X11PasteboardOwnTest, AnEntryWithoutAnEncodingHasItsTypeForOne) {
    giveBack({{u"image/png"_s, "png"_ba, QString()}});
    EXPECT_EQ(contentsOf(), (PasteboardItem{{u"image/png"_s, "png"_ba, u"image/png"_s}}));
}

TEST_F(X11PasteboardOwnTest, AnswersSeveralTargetsInOneRequest) {
    const PasteboardItem item{
        {u"a"_s, "1"_ba, u"a"_s},
        {u"big"_s, noise(900'000), u"INTEGER"_s, 32},
        {u"bigger"_s, noise(1'500'000), u"bigger"_s},
    };
    giveBack(item);
    const auto answers = readAs(u"multiple"_s, {u"a"_s, u"absent"_s, u"big"_s, u"bigger"_s});
    EXPECT_EQ(entryFrom(answers[0]), item[0]);
    EXPECT_TRUE(answers[1].isNull());
    EXPECT_EQ(entryFrom(answers[2]), item[1]);
    EXPECT_EQ(entryFrom(answers[3]), item[2]);
}

TEST_F(X11PasteboardOwnTest, AnswersAClientOfOldThatNamesNoProperty) {
    copy(u"text"_s);
    EXPECT_EQ(entryFrom(readAs(u"obsolete"_s, {u"STRING"_s})).bytes, "text"_ba);
}

TEST_F(X11PasteboardOwnTest, RefusesWhatWasAskedOfTheOwnerBefore) {
    copy(u"text"_s);
    EXPECT_FALSE(readAs(u"outdated"_s, {u"STRING"_s, 0}).isNull());
    EXPECT_TRUE(readAs(u"outdated"_s, {u"STRING"_s, 1}).isNull());
}

TEST_F(X11PasteboardOwnTest, SendsInIncrementsOnlyWhatIsLargerThanAQuarterOfAMebibyte) {
    const PasteboardItem item{
        {u"whole"_s, noise(256 * 1024), u"whole"_s},
        {u"cut"_s, noise(256 * 1024 + 1), u"cut"_s},
    };
    giveBack(item);
    const auto answers = readAs(u"contents"_s);
    EXPECT_EQ(itemFrom(answers), item);
    EXPECT_EQ(answers[0][u"pieces"_s].toInt(), 1);
    EXPECT_EQ(answers[1][u"pieces"_s].toInt(), 2);
}

TEST_F(X11PasteboardOwnTest, SendsIncrementsToSeveralSideBySide) {
    const auto bytes = noise(3'000'000);
    giveBack({{u"big"_s, bytes, u"big"_s}});
    const auto received = readAs(u"parallel"_s, {u"big"_s}).toArray();
    ASSERT_EQ(received.size(), 2);
    for (const auto& one : received)
        EXPECT_EQ(QByteArray::fromBase64(one.toString().toLatin1()), bytes);
}

TEST_F(X11PasteboardOwnTest, OutlivesAReceiverThatVanishesAmidItsData) {
    const PasteboardItem item{{u"big"_s, noise(3'000'000), u"big"_s}};
    giveBack(item);
    EXPECT_EQ(readAs(u"vanishing"_s, {u"big"_s}), u"vanished"_s);
    EXPECT_EQ(contentsOf(), item);
}

TEST_F(X11PasteboardOwnTest, FinishesATransferAfterTheSelectionIsLost) {
    const auto bytes = noise(6'000'000);
    giveBack({{u"big"_s, bytes, u"big"_s}});
    ForeignProgram reader(
        u"selection_reader.py"_s,
        {{u"selection"_s, clipboardSelection},
         {u"way"_s, u"outlasting"_s},
         {u"arguments"_s, QJsonArray{u"big"_s}}});
    ASSERT_EQ(reader.nextReport(), u"begun"_s);
    const auto owner = startOwner({textOffer("new")});
    EXPECT_EQ(savedItem(), itemOf({textOffer("new")}));
    reader.proceed();
    EXPECT_TRUE(entryFrom(reader.nextReport()).bytes == bytes);
}

TEST_F(X11PasteboardOwnTest, ForgetsItsContentsWhenAnotherProgramTakesTheSelection) {
    copy(u"mine"_s);
    const auto owner = startOwner({textOffer("theirs")});
    EXPECT_EQ(savedItem(), itemOf({textOffer("theirs")}));
}

TEST_F(X11PasteboardOwnTest, TakesTheClipboardFromAnotherProgram) {
    const auto owner = startOwner({textOffer("theirs")});
    m_pasteboard.clear();
    copy(u"mine"_s);
    EXPECT_EQ(owner->nextReport(), u"lost"_s);
    EXPECT_EQ(contentsOf().front().bytes, "mine"_ba);
}

TEST_F(X11PasteboardOwnTest, ClearingLeavesNoOwnerWhoeverItWas) {
    const auto owner = startOwner({textOffer("theirs")});
    m_pasteboard.clear();
    EXPECT_EQ(owner->nextReport(), u"lost"_s);
    EXPECT_FALSE(readAs(u"owned"_s).toBool());
    copy(u"mine"_s);
    m_pasteboard.clear();
    EXPECT_TRUE(waitUntil([] { return !readAs(u"owned"_s).toBool(); }));
}

TEST_F(X11PasteboardOwnTest, NothingIsSavedBetweenAClearAndTheIterationsEnd) {
    const auto owner = startOwner({textOffer("theirs")});
    m_pasteboard.clear();
    EXPECT_EQ(saved(), PasteboardContents{});
}

TEST_F(X11PasteboardOwnTest, ContentsThatFollowOnAClearStay) {
    pass(u"first"_s);
    m_pasteboard.clear();
    pass(u"second"_s);
    m_pasteboard.clear();
    // A save ends the clear: the server's word of the loss comes after the next text.
    m_pasteboard.save(m_source, [](const PasteboardContents&) {});
    copy(u"third"_s);
    EXPECT_EQ(contentsOf().front().bytes, "third"_ba);
    EXPECT_EQ(contentsOf().front().bytes, "third"_ba);
}

TEST_F(X11PasteboardOwnTest, NobodySeesAnEmptyClipboardBetweenTwoContents) {
    auto* xcb = m_connection->xcb();
    const XcbReply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        xcb,
        xcb_xfixes_query_version(xcb, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
        nullptr));
    const auto firstEvent = xcb_get_extension_data(xcb, &xcb_xfixes_id)->first_event;
    xcb_xfixes_select_selection_input(
        xcb,
        m_connection->root(),
        m_connection->atom("CLIPBOARD"),
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
    std::vector<bool> isOwned;
    const auto watch = m_connection->subscribe([&](const xcb_generic_event_t& event) {
        if (event.response_type == firstEvent + XCB_XFIXES_SELECTION_NOTIFY) {
            const auto& change =
                reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event);
            isOwned.push_back(change.owner != XCB_WINDOW_NONE);
        }
    });
    pass(u"first"_s);
    m_pasteboard.clear();
    pass(u"second"_s);
    m_pasteboard.clear();
    EXPECT_TRUE(waitUntil([&isOwned] { return !isOwned.empty() && !isOwned.back(); }));
    EXPECT_EQ(isOwned, (std::vector{true, true, false}));
}

TEST_F(X11PasteboardOwnTest, RestoringWithoutAPassingTextChangesNothing) {
    const auto owner = startOwner({textOffer("theirs")});
    restore({});
    EXPECT_EQ(contentsOf(), itemOf({textOffer("theirs")}));
}

} // namespace
} // namespace quorvane
