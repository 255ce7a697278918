// SPDX-License-Identifier: MIT
#include "FakeGlobalShortcuts.h"

#include "PortalShortcutEntry.h"

#include <QDBusArgument>
#include <gtest/gtest.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.freedesktop.portal.Desktop"_s;
const auto object = u"/org/freedesktop/portal/desktop"_s;
const auto globalShortcuts = u"org.freedesktop.portal.GlobalShortcuts"_s;
constexpr qulonglong pressTime = 4711;

} // namespace

FakeGlobalShortcuts::FakeGlobalShortcuts(QDBusConnection bus) : m_bus(std::move(bus)) {
    EXPECT_TRUE(m_bus.registerVirtualObject(object, this, QDBusConnection::SubPath));
}

FakeGlobalShortcuts::~FakeGlobalShortcuts() {
    m_bus.unregisterService(service);
    m_bus.unregisterObject(object);
}

void FakeGlobalShortcuts::appear() {
    EXPECT_TRUE(m_bus.registerService(service));
}

void FakeGlobalShortcuts::vanish() {
    EXPECT_TRUE(m_bus.unregisterService(service));
}

void FakeGlobalShortcuts::press(const QString& session, const QVariantMap& options) {
    signal(
        u"Activated"_s,
        {QVariant::fromValue(QDBusObjectPath(session)), u"toggle"_s, pressTime, options});
}

void FakeGlobalShortcuts::release(const QString& session) {
    signal(
        u"Deactivated"_s,
        {QVariant::fromValue(QDBusObjectPath(session)), u"toggle"_s, pressTime, QVariantMap()});
}

void FakeGlobalShortcuts::change(const std::optional<QString>& other) {
    trigger = other.value_or(QString());
    signal(
        u"ShortcutsChanged"_s,
        {QVariant::fromValue(QDBusObjectPath(m_session)), list(other.has_value())});
}

QString FakeGlobalShortcuts::introspect(const QString& /*path*/) const {
    return {};
}

bool FakeGlobalShortcuts::handleMessage(
    const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    const auto interface = message.interface();
    if (interface == "org.freedesktop.DBus.Properties"_L1) {
        return isOffered && message.arguments().value(0) == globalShortcuts &&
               m_bus.send(message.createReply(QVariantMap{{u"version"_s, 1U}}));
    }
    if (interface == "org.freedesktop.portal.Session"_L1) {
        m_calls.append(u"Session.Close"_s);
        return m_bus.send(message.createReply());
    }
    if (interface != globalShortcuts)
        return false;
    m_calls.append(message.member());
    message.setDelayedReply(true);
    handOutRequest(message);
    return true;
}

void FakeGlobalShortcuts::handOutRequest(const QDBusMessage& message) {
    const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
    const auto sender = message.service().mid(1).replace(u'.', u'_');
    m_client = message.service();
    m_request =
        u"%1/request/%2/%3"_s.arg(object, sender, options.value(u"handle_token"_s).toString());
    m_bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(m_request))));
    if (message.member() == "CreateSession"_L1) {
        m_session = u"%1/session/%2/%3"_s.arg(
            object, sender, options.value(u"session_handle_token"_s).toString());
        respond(0, {{u"session_handle"_s, m_session}});
    } else if (message.member() == "ListShortcuts"_L1) {
        respond(0, {{u"shortcuts"_s, list(knowsShortcut)}});
    } else {
        bind(message);
    }
}

void FakeGlobalShortcuts::bind(const QDBusMessage& message) {
    const auto wished = qdbus_cast<PortalShortcutList>(message.arguments().at(1));
    m_wish = wished.value(0).traits.value(u"preferred_trigger"_s).toString();
    knowsShortcut = userAgrees && !bindsNothing;
    respond(userAgrees ? agreement : 1, {{u"shortcuts"_s, list(knowsShortcut)}});
}

QVariant FakeGlobalShortcuts::list(bool isBound) const {
    if (!isBound)
        return portalshortcuts::sent({});
    return portalshortcuts::sent({{u"toggle"_s, {{u"trigger_description"_s, trigger}}}});
}

void FakeGlobalShortcuts::respond(uint code, const QVariantMap& results) {
    auto answer = QDBusMessage::createTargetedSignal(
        m_client, m_request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
    answer << code << results;
    m_bus.send(answer);
}

void FakeGlobalShortcuts::signal(const QString& name, const QVariantList& arguments) {
    auto message = QDBusMessage::createTargetedSignal(m_client, object, globalShortcuts, name);
    message.setArguments(arguments);
    m_bus.send(message);
}

} // namespace quorvane
