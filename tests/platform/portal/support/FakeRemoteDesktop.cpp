// SPDX-License-Identifier: MIT
#include "FakeRemoteDesktop.h"

#include "FakeSharedClipboard.h"

#include <QDBusArgument>
#include <gtest/gtest.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto object = u"/org/freedesktop/portal/desktop"_s;
const auto remoteDesktop = u"org.freedesktop.portal.RemoteDesktop"_s;
const auto registry = u"org.freedesktop.host.portal.Registry"_s;
const auto request = u"org.freedesktop.portal.Request"_s;
const auto session = u"org.freedesktop.portal.Session"_s;
const auto properties = u"org.freedesktop.DBus.Properties"_s;

QString senderElement(const QDBusMessage& message) {
    return message.service().mid(1).replace(u'.', u'_');
}

} // namespace

FakeRemoteDesktop::FakeRemoteDesktop(QDBusConnection bus) : m_bus(std::move(bus)) {
    EXPECT_TRUE(m_bus.registerVirtualObject(object, this, QDBusConnection::SubPath));
}

FakeRemoteDesktop::~FakeRemoteDesktop() {
    m_bus.unregisterService(QString::fromLatin1(service));
    m_bus.unregisterObject(object);
}

void FakeRemoteDesktop::appear() {
    EXPECT_TRUE(m_bus.registerService(QString::fromLatin1(service)));
}

void FakeRemoteDesktop::vanish() {
    EXPECT_TRUE(m_bus.unregisterService(QString::fromLatin1(service)));
}

void FakeRemoteDesktop::answer(Answer given) {
    if (given == Answer::NotYet)
        return;
    const bool isYes = given == Answer::Yes;
    respond(isYes ? 0 : 1, isYes ? consent : QVariantMap());
}

void FakeRemoteDesktop::closeSession() {
    auto signal = QDBusMessage::createTargetedSignal(m_client, m_session, session, u"Closed"_s);
    signal << QVariantMap();
    m_bus.send(signal);
}

QString FakeRemoteDesktop::introspect(const QString& /*path*/) const {
    return {};
}

bool FakeRemoteDesktop::handleMessage(
    const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    const auto interface = message.interface();
    if (interface == properties) {
        if (message.arguments().value(0) != remoteDesktop || offer.isEmpty())
            return false;
        m_calls.append(u"GetAll"_s);
        return m_bus.send(message.createReply(offer));
    }
    if (interface == registry && hasRegistry) {
        m_calls.append(u"Register "_s + message.arguments().value(0).toString());
        return m_bus.send(message.createReply());
    }
    if (interface == request || interface == session) {
        m_calls.append(interface.section(u'.', -1) + u'.' + message.member());
        return m_bus.send(message.createReply());
    }
    if (interface == remoteDesktop)
        return handleRemoteDesktop(message);
    if (message.member() == "RequestClipboard"_L1)
        m_calls.append(message.member());
    return clipboard != nullptr && clipboard->handle(message);
}

bool FakeRemoteDesktop::handleRemoteDesktop(const QDBusMessage& message) {
    const auto method = message.member();
    const auto arguments = message.arguments();
    if (method == "NotifyKeyboardKeycode"_L1)
        m_keys.append({arguments.value(2).toInt(), arguments.value(3).toUInt()});
    else
        m_calls.append(method);
    message.setDelayedReply(true);
    if (silentAbout.contains(method))
        return true;
    if (refuses.contains(method))
        return m_bus.send(message.createErrorReply(QDBusError::AccessDenied, u"not today"_s));
    if (method == "NotifyKeyboardKeycode"_L1)
        return m_bus.send(message.createReply());
    handOutRequest(message, qdbus_cast<QVariantMap>(arguments.constLast()));
    return true;
}

void FakeRemoteDesktop::handOutRequest(const QDBusMessage& message, const QVariantMap& options) {
    const auto method = message.member();
    m_options[method] = options;
    m_client = message.service();
    m_request = u"%1/request/%2/%3"_s.arg(
        object, senderElement(message), options.value(u"handle_token"_s).toString());
    m_bus.send(message.createReply(
        QVariant::fromValue(QDBusObjectPath(foreignRequest.value_or(m_request)))));
    if (method == "Start"_L1)
        return answer(user);
    if (method != "CreateSession"_L1)
        return respond(0, {});
    m_session = u"%1/session/%2/%3"_s.arg(
        object, senderElement(message), options.value(u"session_handle_token"_s).toString());
    respond(0, {{u"session_handle"_s, foreignSession.value_or(m_session)}});
}

void FakeRemoteDesktop::respond(uint code, const QVariantMap& results) {
    auto signal = QDBusMessage::createTargetedSignal(m_client, m_request, request, u"Response"_s);
    if (hasOddTypes)
        signal << QString::number(code) << QStringList();
    else
        signal << code << results;
    m_bus.send(signal);
}

} // namespace quorvane
