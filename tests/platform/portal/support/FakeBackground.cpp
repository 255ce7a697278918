// SPDX-License-Identifier: MIT
#include "FakeBackground.h"

#include <QDBusArgument>
#include <gtest/gtest.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.freedesktop.portal.Desktop"_s;
const auto object = u"/org/freedesktop/portal/desktop"_s;
const auto background = u"org.freedesktop.portal.Background"_s;
const auto request = u"org.freedesktop.portal.Request"_s;

} // namespace

FakeBackground::FakeBackground(QDBusConnection bus) : m_bus(std::move(bus)) {
    EXPECT_TRUE(m_bus.registerVirtualObject(object, this, QDBusConnection::SubPath));
}

FakeBackground::~FakeBackground() {
    m_bus.unregisterService(service);
    m_bus.unregisterObject(object);
}

void FakeBackground::appear() {
    EXPECT_TRUE(m_bus.registerService(service));
}

void FakeBackground::vanish() {
    EXPECT_TRUE(m_bus.unregisterService(service));
}

void FakeBackground::answer(uint code, const QVariantMap& results) {
    m_question.reset();
    auto response = QDBusMessage::createTargetedSignal(m_client, m_request, request, u"Response"_s);
    response << code << results;
    m_bus.send(response);
}

QString FakeBackground::introspect(const QString& /*path*/) const {
    return {};
}

bool FakeBackground::handleMessage(
    const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    const auto interface = message.interface();
    if (interface == "org.freedesktop.DBus.Properties"_L1) {
        return isOffered && message.arguments().value(0) == background &&
               m_bus.send(message.createReply(QVariantMap{{u"version"_s, 2U}}));
    }
    if (interface == request) {
        m_isTakenBack = true;
        return m_bus.send(message.createReply());
    }
    if (interface != background)
        return false;
    m_question = qdbus_cast<QVariantMap>(message.arguments().constLast());
    m_client = message.service();
    m_request = u"%1/request/%2/%3"_s.arg(
        object,
        m_client.mid(1).replace(u'.', u'_'),
        m_question->value(u"handle_token"_s).toString());
    return m_bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(m_request))));
}

} // namespace quorvane
