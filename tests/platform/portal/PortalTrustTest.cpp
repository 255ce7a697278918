// SPDX-License-Identifier: MIT
#include "support/PortalFixture.h"

#include <QDBusPendingCall>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Answer = FakeRemoteDesktop::Answer;

/// What is believed of what comes over the bus.
class PortalTrustTest : public PortalFixture {
protected:
    /// A signal of somebody else's, to the program.
    void
    pretend(const QString& path, const QString& interface, const QString& name, QVariantList what) {
        auto signal = QDBusMessage::createTargetedSignal(portal.client(), path, interface, name);
        signal.setArguments(what);
        auto stranger = bus.connection();
        stranger.send(signal);
        // In order with the signal: the bus has handed that over by then.
        const auto ping = stranger.asyncCall(QDBusMessage::createMethodCall(
            portal.client(), u"/"_s, u"org.freedesktop.DBus.Peer"_s, u"Ping"_s));
        ASSERT_TRUE(comesTo([&] { return ping.isFinished(); }));
        queue.run();
    }
};

TEST_F(PortalTrustTest, TrustsNoAnswerOfOtherTypes) {
    portal.hasOddTypes = true;
    portal.appear();
    startProgram();
    EXPECT_TRUE(opensTo(TypingRight::Unavailable));
}

TEST_F(PortalTrustTest, TrustsNoHandlesThatAreNotOurs) {
    portal.foreignSession = u"/org/freedesktop/portal/desktop/session/1_1/other"_s;
    portal.appear();
    startProgram();
    EXPECT_TRUE(opensTo(TypingRight::Unavailable));
    portal.foreignSession.reset();
    portal.user = Answer::NotYet;
    portal.foreignRequest = u"/org/freedesktop/portal/desktop/request/1_1/other"_s;
    EXPECT_TRUE(opensTo(TypingRight::Unavailable));
}

TEST_F(PortalTrustTest, TakesNoConsentWithoutTheKeyboard) {
    for (const QVariant& devices : {QVariant(6U), QVariant(u"1"_s), QVariant()}) {
        portal.consent[u"devices"_s] = devices.isValid() ? devices : QVariant(false);
        portal.appear();
        startProgram();
        EXPECT_TRUE(opensTo(TypingRight::Refused));
        portal.vanish();
    }
}

TEST_F(PortalTrustTest, IgnoresTokensThatAreNone) {
    portal.offer[u"version"_s] = 2U;
    for (const QVariant& token : {QVariant(7U), QVariant(QString(4096, u'x'))}) {
        portal.consent[u"restore_token"_s] = token;
        portal.appear();
        startProgram();
        EXPECT_TRUE(opensTo(TypingRight::Granted));
        EXPECT_EQ(defaults.stringForKey(u"typingToken"_s).value_or(QString()), QString());
        portal.vanish();
    }
}

TEST_F(PortalTrustTest, HearsThePortalAloneWhateverOthersSay) {
    portal.user = Answer::NotYet;
    portal.appear();
    startProgram();
    keyboard->open();
    ASSERT_TRUE(comesTo([&] { return portal.callsOf(u"Start"_s) == 1; }));
    pretend(
        portal.requestPath(),
        u"org.freedesktop.portal.Request"_s,
        u"Response"_s,
        {0U, QVariantMap{{u"devices"_s, 1U}}});
    ASSERT_TRUE(settles());
    EXPECT_EQ(keyboard->state(), TypingRight::Asking);
    portal.answer(Answer::Yes);
    ASSERT_TRUE(comesTo(TypingRight::Granted));
    pretend(
        portal.sessionPath(), u"org.freedesktop.portal.Session"_s, u"Closed"_s, {QVariantMap()});
    ASSERT_TRUE(settles());
    EXPECT_EQ(keyboard->state(), TypingRight::Granted);
}

} // namespace
} // namespace quorvane
