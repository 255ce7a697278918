// SPDX-License-Identifier: MIT
#include "support/PortalClipboardFixture.h"

#include <platform/KeyCodes.h>
#include <platform_portal/PortalKeyPoster.h>
#include <testing/FakeKeyboardLayout.h>

#include <QDBusArgument>
#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Answer = FakeRemoteDesktop::Answer;
using End = FakeSharedClipboard::End;
using testing::Contains;
using testing::ElementsAre;

const auto utf8 = u"text/plain;charset=utf-8"_s;
constexpr qsizetype long3MB = 3'145'728;

class PortalClipboardTest : public PortalClipboardFixture {};

TEST_F(PortalClipboardTest, IsAskedForBeforeTheUserIs) {
    ASSERT_TRUE(isShared());
    const auto& calls = portal.calls();
    EXPECT_EQ(portal.callsOf(u"RequestClipboard"_s), 1);
    EXPECT_LT(calls.indexOf(u"SelectDevices"_s), calls.indexOf(u"RequestClipboard"_s));
    EXPECT_LT(calls.indexOf(u"RequestClipboard"_s), calls.indexOf(u"Start"_s));
}

TEST_F(PortalClipboardTest, GivesACopiedTextToEverybody) {
    ASSERT_TRUE(isShared());
    ASSERT_EQ(put(u"Mañana, 12:00"_s), PutOutcome::Taken);
    EXPECT_EQ(shared.types(), QStringList({utf8, u"UTF8_STRING"_s, u"text/plain"_s}));
    EXPECT_EQ(pasted(utf8), u"Mañana, 12:00"_s.toUtf8());
    ASSERT_TRUE(comesTo([&] { return !shared.ends().isEmpty(); }));
    EXPECT_THAT(shared.ends(), ElementsAre(End{1, true}));
}

TEST_F(PortalClipboardTest, GivesBackWhatAPassingTextHasReplaced) {
    ASSERT_TRUE(isShared());
    const QMap<QString, QByteArray> four{
        {utf8, "noon"},
        {u"text/html"_s, "<b>noon</b>"},
        {u"application/x-private"_s, QByteArray("\0\1\2", 3)},
        {u"image/png"_s, QByteArray(long3MB, 'p')}};
    copy(four);
    const auto before = saved();
    ASSERT_EQ(put(u"passing"_s, TextStay::Passing), PutOutcome::Taken);
    EXPECT_EQ(pasted(utf8), "passing");
    restore(before);
    EXPECT_EQ(shared.types(), QStringList(four.keys()));
    for (const auto& [type, bytes] : four.asKeyValueRange())
        EXPECT_EQ(pasted(type), bytes) << qPrintable(type);
}

TEST_F(PortalClipboardTest, LeavesWhatTheUserHasCopiedMeanwhile) {
    ASSERT_TRUE(isShared());
    copy({{utf8, "before"}});
    const auto before = saved();
    ASSERT_EQ(put(u"passing"_s, TextStay::Passing), PutOutcome::Taken);
    copy({{utf8, "meanwhile"}});
    const auto settings = shared.settings();
    restore(before);
    EXPECT_EQ(shared.settings(), settings);
    EXPECT_EQ(textOf(saved()), u"meanwhile"_s);
}

TEST_F(PortalClipboardTest, FindsWhatWasCopiedBeforeItWasShared) {
    ASSERT_TRUE(isShared());
    shared.setContents({{utf8, "earlier"}});
    EXPECT_EQ(textOf(saved()), u"earlier"_s);
}

TEST_F(PortalClipboardTest, GivesBackNothingThatWasNotThereBefore) {
    ASSERT_TRUE(isShared());
    shared.setContents({{utf8, "earlier"}, {u"text/uri-list"_s, {}}});
    EXPECT_EQ(saved(), (PasteboardItem{{utf8, "earlier", {}}}));
}

TEST_F(PortalClipboardTest, KnowsWhatIsToldTogetherWithTheConsent) {
    portal.user = Answer::NotYet;
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"Start"_s) == 1; }));
    shared.client = portal.client();
    shared.session = portal.sessionPath();
    portal.answer(Answer::Yes);
    shared.copy({{u"application/x-private"_s, "private"}});
    ASSERT_TRUE(comesTo(TypingRight::Granted));
    EXPECT_EQ(saved(), (PasteboardItem{{u"application/x-private"_s, "private", {}}}));
}

TEST_F(PortalClipboardTest, UnderstandsAListOfTypesInAStructure) {
    ASSERT_TRUE(isShared());
    copy({{u"image/png"_s, "picture"}});
    QDBusArgument structure;
    structure.beginStructure();
    structure << QStringList{u"image/png"_s};
    structure.endStructure();
    shared.tellOwner(QVariant::fromValue(structure));
    ASSERT_TRUE(settles());
    EXPECT_EQ(saved(), (PasteboardItem{{u"image/png"_s, "picture", {}}}));
}

TEST_F(PortalClipboardTest, KnowsAnEmptyClipboard) {
    ASSERT_TRUE(isShared());
    copy({});
    EXPECT_EQ(saved(), PasteboardItem{});
    EXPECT_TRUE(shared.reads().isEmpty());
}

TEST_F(PortalClipboardTest, IsAnothersWhileTheUserHasNotAnswered) {
    portal.user = Answer::NotYet;
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"Start"_s) == 1; }));
    EXPECT_EQ(put(u"noon"_s), PutOutcome::Taken);
    EXPECT_EQ(textOf(otherwise->contents().items.front()), u"noon"_s);
    EXPECT_FALSE(shared.types());
}

TEST_F(PortalClipboardTest, IsAnothersAfterARefusal) {
    portal.user = Answer::No;
    ASSERT_TRUE(opensTo(TypingRight::Refused));
    EXPECT_EQ(put(u"noon"_s), PutOutcome::Taken);
    EXPECT_EQ(textOf(otherwise->contents().items.front()), u"noon"_s);
}

TEST_F(PortalClipboardTest, IsAnothersWhereTheUserAgreesToTheKeyboardAlone) {
    portal.consent[u"clipboard_enabled"_s] = false;
    EXPECT_FALSE(isShared());
    EXPECT_EQ(keyboard->state(), TypingRight::Granted);
    EXPECT_EQ(put(u"noon"_s), PutOutcome::Taken);
    EXPECT_EQ(textOf(otherwise->contents().items.front()), u"noon"_s);
}

TEST_F(PortalClipboardTest, IsDoneWithoutWhereThePortalHasNone) {
    shared.refuses = {u"RequestClipboard"_s};
    portal.consent.remove(u"clipboard_enabled"_s);
    EXPECT_FALSE(isShared());
    EXPECT_EQ(keyboard->state(), TypingRight::Granted);
}

TEST_F(PortalClipboardTest, DoesNotWaitForAPortalThatSaysNothingAboutIt) {
    shared.silentAbout = {u"RequestClipboard"_s};
    portal.consent.remove(u"clipboard_enabled"_s);
    EXPECT_TRUE(opensTo(TypingRight::Granted));
}

TEST_F(PortalClipboardTest, IsAnothersWhenTheConsentIsTakenBack) {
    ASSERT_TRUE(isShared());
    copy({{utf8, "before"}});
    const auto before = saved();
    ASSERT_EQ(put(u"passing"_s, TextStay::Passing), PutOutcome::Taken);
    portal.closeSession();
    ASSERT_TRUE(comesTo(TypingRight::Stopped));
    const auto settings = shared.settings();
    restore(before);
    EXPECT_EQ(shared.settings(), settings);
    EXPECT_EQ(put(u"noon"_s), PutOutcome::Taken);
    EXPECT_EQ(textOf(otherwise->contents().items.front()), u"noon"_s);
}

TEST_F(PortalClipboardTest, AnswersASaveThatTheEndOfTheSessionMeets) {
    ASSERT_TRUE(isShared());
    copy({{utf8, "before"}});
    shared.silentAbout = {u"SelectionRead"_s};
    startSave();
    portal.closeSession();
    ASSERT_TRUE(comesTo(TypingRight::Stopped));
    queue.advance(OfferPasteboardSave::longestSave);
    EXPECT_TRUE(contents);
}

TEST_F(PortalClipboardTest, EndsTheConsentWhereThePortalDoesNotTakeAText) {
    ASSERT_TRUE(isShared());
    shared.refuses = {u"SetSelection"_s};
    static_cast<void>(pasteboard->setString(u"x"_s, TextStay::Passing, PasteSource::Clipboard));
    EXPECT_TRUE(comesTo(TypingRight::Stopped));
    EXPECT_FALSE(keyboard->sharesClipboard());
}

TEST_F(PortalClipboardTest, IsSharedAgainInTheNextSession) {
    ASSERT_TRUE(isShared());
    portal.closeSession();
    ASSERT_TRUE(comesTo(TypingRight::Stopped));
    ASSERT_TRUE(isShared());
    ASSERT_EQ(put(u"again"_s), PutOutcome::Taken);
    EXPECT_EQ(pasted(utf8), "again");
}

TEST_F(PortalClipboardTest, IsPastedFromWithTheKeyThatTypesAV) {
    FakeKeyboardLayout dvorak;
    dvorak.setKey(keycode::period, u"v");
    PortalKeyPoster poster(keyboard, queue, dvorak, [] { return false; });
    ASSERT_TRUE(isShared());
    ASSERT_EQ(poster.pasteTarget(), (PasteTarget{PasteKeys::ControlV, PasteSource::Clipboard}));
    ASSERT_TRUE(comesTo([&] { return portal.keys().size() == 2; }));
    poster.paste(*poster.pasteTarget(), [](PostOutcome) {});
    for (qsizetype sent = 3; sent <= 6; ++sent) {
        ASSERT_TRUE(comesTo([&] { return portal.keys().size() == sent; }) && settles());
        queue.advance(PortalKeyPoster::gap);
    }
    using Key = FakeRemoteDesktop::Key;
    // Of linux/input-event-codes.h: the left Ctrl and the full stop.
    EXPECT_THAT(
        portal.keys().sliced(2), ElementsAre(Key{29, 1}, Key{52, 1}, Key{52, 0}, Key{29, 0}));
}

TEST_F(PortalClipboardTest, WaitsAtTheEndForWhoTakesTheTextOver) {
    ASSERT_TRUE(isShared());
    ASSERT_EQ(put(QString(long3MB, u'x')), PutOutcome::Taken);
    const auto serial = shared.paste(utf8);
    ASSERT_TRUE(comesTo([&] { return shared.pasted(serial).has_value(); }));
    ASSERT_TRUE(settles());
    bool isHandedOver = false;
    pasteboard->handOver([&] { isHandedOver = true; });
    queue.advance(OfferHandOver::longestStart);
    EXPECT_FALSE(isHandedOver);
    EXPECT_EQ(readToEnd(*shared.pasted(serial)).size(), long3MB);
    EXPECT_TRUE(comesTo([&] { return isHandedOver; }));
}

} // namespace
} // namespace quorvane
