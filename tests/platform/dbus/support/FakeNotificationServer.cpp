// SPDX-License-Identifier: MIT
#include "FakeNotificationServer.h"

#include <platform_dbus/DBusNotifications.h>

#include <gtest/gtest.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto service = DBusNotifications::serviceName.toString();
const auto path = DBusNotifications::objectPath.toString();

} // namespace

FakeNotificationServer::FakeNotificationServer(QDBusConnection bus) : m_bus(std::move(bus)) {
    EXPECT_TRUE(m_bus.registerVirtualObject(path, this));
}

FakeNotificationServer::~FakeNotificationServer() {
    m_bus.unregisterService(service);
    m_bus.unregisterObject(path);
}

void FakeNotificationServer::appear() {
    EXPECT_TRUE(m_bus.registerService(service));
}

void FakeNotificationServer::answerAll() {
    m_hangs = false;
    for (const auto& call : std::exchange(m_pending, {}))
        answer(call);
}

void FakeNotificationServer::invokeAction(uint id, const QString& key) {
    send(u"ActionInvoked"_s, {id, key});
}

void FakeNotificationServer::close(uint id) {
    constexpr uint dismissedByUser = 2;
    send(u"NotificationClosed"_s, {id, dismissedByUser});
}

QString FakeNotificationServer::introspect(const QString& /*path*/) const {
    return {};
}

bool FakeNotificationServer::handleMessage(
    const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    if (message.interface() != service)
        return false;
    ++m_calls;
    message.setDelayedReply(true);
    if (m_hangs)
        m_pending.append(message);
    else
        answer(message);
    return true;
}

void FakeNotificationServer::answer(const QDBusMessage& call) {
    if (call.member() == "GetCapabilities"_L1) {
        m_bus.send(call.createReply(capabilities));
        return;
    }
    m_notifications.append(call.arguments());
    const auto replaced = call.arguments().value(1).toUInt();
    m_bus.send(call.createReply(replaced != 0 ? replaced : nextId++));
}

void FakeNotificationServer::send(const QString& signal, const QVariantList& arguments) {
    auto message = QDBusMessage::createSignal(path, service, signal);
    message.setArguments(arguments);
    m_bus.send(message);
}

} // namespace quorvane
