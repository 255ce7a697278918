// SPDX-License-Identifier: MIT
#include "support/PortalFixture.h"

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Answer = FakeRemoteDesktop::Answer;
using Key = FakeRemoteDesktop::Key;
using testing::ElementsAre;

constexpr int leftShift = 42; // linux/input-event-codes.h

class PortalKeyboardTest : public PortalFixture {
protected:
    void makeVersion2() { portal.offer[u"version"_s] = 2U; }

    void giveToken(const QString& token) { portal.consent[u"restore_token"_s] = token; }

    [[nodiscard]] QString storedToken() {
        return defaults.stringForKey(u"typingToken"_s).value_or(QString());
    }
};

TEST_F(PortalKeyboardTest, AsksNobodyByItself) {
    portal.appear();
    startProgram();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"GetAll"_s) == 1; }));
    ASSERT_TRUE(settles());
    EXPECT_EQ(portal.calls(), QStringList{u"GetAll"_s});
    EXPECT_EQ(keyboard->state(), TypingRight::NotAsked);
    EXPECT_TRUE(keyboard->isOffered());
}

TEST_F(PortalKeyboardTest, AsksForAKeyboardAndWakesItUp) {
    portal.appear();
    startProgram();
    ASSERT_TRUE(opensTo(TypingRight::Granted));
    EXPECT_THAT(states, ElementsAre(TypingRight::Asking, TypingRight::Granted));
    EXPECT_EQ(
        portal.calls().last(3), (QStringList{u"CreateSession"_s, u"SelectDevices"_s, u"Start"_s}));
    auto selected = portal.optionsOf(u"SelectDevices"_s);
    selected.remove(u"handle_token"_s);
    EXPECT_EQ(selected, (QVariantMap{{u"types"_s, 1U}}));
    ASSERT_TRUE(comesTo([&] { return portal.keys().size() == 2; }));
    EXPECT_THAT(portal.keys(), ElementsAre(Key{leftShift, 1}, Key{leftShift, 0}));
}

TEST_F(PortalKeyboardTest, SaysWhoWeAreBeforeAnythingElseWhereThePortalWantsToKnow) {
    portal.hasRegistry = true;
    portal.appear();
    startProgram();
    ASSERT_TRUE(opensTo(TypingRight::Granted));
    EXPECT_EQ(portal.calls().first(), u"Register org.quorvane.Quorvane"_s);
}

TEST_F(PortalKeyboardTest, WaitsForTheUserAsLongAsItTakes) {
    portal.user = Answer::NotYet;
    portal.appear();
    startProgram();
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"Start"_s) == 1; }));
    ASSERT_TRUE(settles());
    queue.advance(24h);
    EXPECT_EQ(keyboard->state(), TypingRight::Asking);
    portal.answer(Answer::Yes);
    EXPECT_TRUE(comesTo(TypingRight::Granted));
}

TEST_F(PortalKeyboardTest, PutsOneQuestionAtATime) {
    portal.user = Answer::NotYet;
    portal.appear();
    startProgram();
    keyboard->open();
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"Start"_s) == 1; }));
    keyboard->open();
    ASSERT_TRUE(settles());
    EXPECT_EQ(portal.callsOf(u"CreateSession"_s), 1);
}

TEST_F(PortalKeyboardTest, TakesTheQuestionBackAtTheEnd) {
    portal.user = Answer::NotYet;
    portal.appear();
    startProgram();
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"Start"_s) == 1; }));
    ASSERT_TRUE(settles());
    keyboard.reset();
    EXPECT_TRUE(comesTo([&] { return portal.callsOf(u"Session.Close"_s) == 1; }));
    EXPECT_EQ(portal.callsOf(u"Request.Close"_s), 1);
}

TEST_F(PortalKeyboardTest, MayAskAgainAfterARefusal) {
    portal.user = Answer::No;
    portal.appear();
    startProgram();
    ASSERT_TRUE(opensTo(TypingRight::Refused));
    EXPECT_TRUE(comesTo([&] { return portal.callsOf(u"Session.Close"_s) == 1; }));
    portal.user = Answer::Yes;
    EXPECT_TRUE(opensTo(TypingRight::Granted));
}

TEST_F(PortalKeyboardTest, StopsWhenTheUserTakesTheConsentBack) {
    portal.appear();
    startProgram();
    ASSERT_TRUE(opensTo(TypingRight::Granted));
    portal.closeSession();
    ASSERT_TRUE(comesTo(TypingRight::Stopped));
    EXPECT_TRUE(opensTo(TypingRight::Granted));
}

TEST_F(PortalKeyboardTest, ConsentThatIsClosedBeforeItIsGivenIsARefusal) {
    portal.user = Answer::NotYet;
    portal.appear();
    startProgram();
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"Start"_s) == 1; }));
    portal.closeSession();
    EXPECT_TRUE(comesTo(TypingRight::Refused));
}

TEST_F(PortalKeyboardTest, StopsWithThePortalAndGoesOnWithTheNextOne) {
    portal.hasRegistry = true;
    portal.appear();
    startProgram();
    ASSERT_TRUE(opensTo(TypingRight::Granted));
    portal.vanish();
    ASSERT_TRUE(comesTo(TypingRight::Stopped));
    FakeRemoteDesktop next(bus.connection());
    next.hasRegistry = true;
    next.appear();
    ASSERT_TRUE(opensTo(TypingRight::Granted));
    EXPECT_EQ(next.calls().first(), u"Register org.quorvane.Quorvane"_s);
}

TEST_F(PortalKeyboardTest, StopsWhereThePortalDiesWhileItAsks) {
    portal.user = Answer::NotYet;
    portal.appear();
    startProgram();
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"Start"_s) == 1; }));
    portal.vanish();
    EXPECT_TRUE(comesTo(TypingRight::Stopped));
}

TEST_F(PortalKeyboardTest, IsNotToBeHadWithoutAPortalAndIsWhenThatComes) {
    startProgram();
    ASSERT_TRUE(comesTo(TypingRight::Unavailable));
    EXPECT_FALSE(keyboard->isOffered());
    portal.appear();
    ASSERT_TRUE(comesTo(TypingRight::NotAsked));
    EXPECT_TRUE(keyboard->isOffered());
}

TEST_F(PortalKeyboardTest, IsNotToBeHadFromAPortalWithoutKeyboards) {
    portal.offer[u"AvailableDeviceTypes"_s] = 6U;
    portal.appear();
    startProgram();
    ASSERT_TRUE(comesTo(TypingRight::Unavailable));
    EXPECT_FALSE(keyboard->isOffered());
}

TEST_F(PortalKeyboardTest, KeepsTheConsentForTheNextRunWhereThePortalCan) {
    makeVersion2();
    giveToken(u"first"_s);
    portal.appear();
    startProgram();
    ASSERT_TRUE(opensTo(TypingRight::Granted));
    EXPECT_EQ(portal.optionsOf(u"SelectDevices"_s)[u"persist_mode"_s], 2U);
    EXPECT_FALSE(portal.optionsOf(u"SelectDevices"_s).contains(u"restore_token"_s));
    EXPECT_EQ(storedToken(), u"first"_s);

    giveToken(u"second"_s);
    startProgram();
    ASSERT_TRUE(opensTo(TypingRight::Granted));
    EXPECT_EQ(portal.optionsOf(u"SelectDevices"_s)[u"restore_token"_s], u"first"_s);
    EXPECT_EQ(storedToken(), u"second"_s);
}

TEST_F(PortalKeyboardTest, ForgetsATokenThatWasUsedAndNotRenewed) {
    makeVersion2();
    defaults.setString(u"typingToken"_s, u"old"_s);
    portal.appear();
    startProgram();
    ASSERT_TRUE(opensTo(TypingRight::Granted));
    EXPECT_EQ(storedToken(), QString());
}

TEST_F(PortalKeyboardTest, ForgetsATokenWithARefusal) {
    makeVersion2();
    defaults.setString(u"typingToken"_s, u"old"_s);
    portal.user = Answer::No;
    portal.appear();
    startProgram();
    ASSERT_TRUE(opensTo(TypingRight::Refused));
    EXPECT_EQ(storedToken(), QString());
}

TEST_F(PortalKeyboardTest, KeepsTheTokenWhereThePortalDiesBeforeItIsUsed) {
    makeVersion2();
    defaults.setString(u"typingToken"_s, u"old"_s);
    portal.user = Answer::NotYet;
    portal.appear();
    startProgram();
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"Start"_s) == 1; }));
    portal.vanish();
    ASSERT_TRUE(comesTo(TypingRight::Stopped));
    EXPECT_EQ(storedToken(), u"old"_s);
}

TEST_F(PortalKeyboardTest, GivesUpAPortalThatDoesNotAnswerWhatAsksNobody) {
    portal.silentAbout = {u"CreateSession"_s};
    portal.appear();
    startProgram();
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"CreateSession"_s) == 1; }));
    queue.advance(9s);
    EXPECT_EQ(keyboard->state(), TypingRight::Asking);
    queue.advance(1s);
    EXPECT_EQ(keyboard->state(), TypingRight::Unavailable);
    EXPECT_TRUE(keyboard->isOffered());
}

TEST_F(PortalKeyboardTest, IsNotToBeHadWhereASessionIsRefused) {
    for (const auto& method : {u"CreateSession"_s, u"SelectDevices"_s}) {
        FakeRemoteDesktop strict(bus.connection());
        strict.refuses = {method};
        strict.appear();
        startProgram();
        EXPECT_TRUE(opensTo(TypingRight::Unavailable)) << method.toStdString();
    }
}

} // namespace
} // namespace quorvane
