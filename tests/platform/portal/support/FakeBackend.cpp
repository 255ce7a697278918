// SPDX-License-Identifier: MIT
#include "FakeBackend.h"

#include <QVariantMap>
#include <gtest/gtest.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

FakeBackend::FakeBackend(QDBusConnection bus, const QString& desktop, Kind kind)
    : m_bus(std::move(bus)),
      m_kind(kind) {
    EXPECT_TRUE(m_bus.registerVirtualObject(u"/org/freedesktop/portal/desktop"_s, this));
    EXPECT_TRUE(m_bus.registerService(u"org.freedesktop.impl.portal.desktop.%1"_s.arg(desktop)));
}

FakeBackend::~FakeBackend() {
    m_bus.unregisterObject(u"/org/freedesktop/portal/desktop"_s);
}

QString FakeBackend::introspect(const QString& /*path*/) const {
    return {};
}

bool FakeBackend::handleMessage(
    const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    if (message.member() != "GetAll"_L1)
        return false;
    m_isAsked = true;
    message.setDelayedReply(true);
    const bool isKnown =
        m_kind == Kind::HasShortcuts &&
        message.arguments().value(0) == u"org.freedesktop.impl.portal.GlobalShortcuts"_s;
    if (isKnown)
        m_bus.send(message.createReply(QVariantMap{{u"version"_s, 1U}}));
    else if (m_kind != Kind::Hangs)
        m_bus.send(message.createErrorReply(QDBusError::UnknownInterface, u"no such interface"_s));
    return true;
}

} // namespace quorvane
