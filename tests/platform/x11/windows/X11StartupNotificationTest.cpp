// SPDX-License-Identifier: MIT
#include "support/X11Test.h"

#include <x11_windows/X11StartupNotification.h>

#include <QByteArray>
#include <QList>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// The test follows what is launched, as a desktop does.
class X11StartupNotificationTest : public X11Test {
protected:
    X11StartupNotificationTest() {
        constexpr std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(
            m_desktop->xcb(), m_desktop->root(), XCB_CW_EVENT_MASK, &events);
        m_desktop->waitForServer();
    }

    void take(const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7F) != XCB_CLIENT_MESSAGE)
            return;
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        const bool isFirst = message.type == m_desktop->atom("_NET_STARTUP_INFO_BEGIN");
        if (!isFirst && message.type != m_desktop->atom("_NET_STARTUP_INFO"))
            return;
        if (isFirst)
            m_text.clear();
        const QByteArray piece(reinterpret_cast<const char*>(message.data.data8), 20);
        m_text += piece.left(piece.indexOf('\0') < 0 ? 20 : piece.indexOf('\0'));
        if (piece.contains('\0'))
            m_messages.append(m_text);
    }

    QList<QByteArray> messagesOf(const ActivationToken& token) {
        m_messages.clear();
        X11StartupNotification notification(m_connection);
        notification.begin(token);
        notification.end();
        notification.end();
        // After it, all that was sent before has come.
        notification.begin({{}, u"last"_s});
        notification.end();
        EXPECT_TRUE(waitUntil([&] { return m_messages.contains(R"(remove: ID="last")"); }));
        m_messages.removeLast();
        return m_messages;
    }

private:
    std::shared_ptr<X11Connection> m_desktop = X11Connection::open();
    QByteArray m_text;
    QList<QByteArray> m_messages;
    X11Connection::Subscription m_events =
        m_desktop->subscribe([this](const xcb_generic_event_t& event) { take(event); });
};

TEST_F(X11StartupNotificationTest, EndIsToldOnceHoweverLongTheIdentifierIs) {
    EXPECT_EQ(messagesOf({{}, u"7"_s}), QList<QByteArray>{R"(remove: ID="7")"});
    const QByteArray longOne(300, 'i');
    EXPECT_EQ(
        messagesOf({{}, QString::fromLatin1(longOne)}),
        QList<QByteArray>{"remove: ID=\"" + longOne + "\""});
}

TEST_F(X11StartupNotificationTest, MessageThatFillsItsEventsHasAnEndAllTheSame) {
    // 20 bytes with the quotes: the zero comes in an event of its own.
    EXPECT_EQ(messagesOf({{}, u"1234567"_s}), QList<QByteArray>{R"(remove: ID="1234567")"});
}

TEST_F(X11StartupNotificationTest, CharactersWithAMeaningAreQuoted) {
    EXPECT_EQ(
        messagesOf({{}, uR"(a "b" \c ü)"_s}), QList<QByteArray>{R"(remove: ID="a \"b\" \\c ü")"});
}

TEST_F(X11StartupNotificationTest, NothingIsToldOfWhatNobodyFollows) {
    EXPECT_EQ(messagesOf({u"of wayland"_s, {}}), QList<QByteArray>{});
}

} // namespace
} // namespace quorvane
