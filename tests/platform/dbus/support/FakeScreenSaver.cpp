// SPDX-License-Identifier: MIT
#include "FakeScreenSaver.h"

#include <gtest/gtest.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.freedesktop.ScreenSaver"_s;
const auto path = u"/org/freedesktop/ScreenSaver"_s;

} // namespace

FakeScreenSaver::FakeScreenSaver(QDBusConnection bus) : m_bus(std::move(bus)) {
    EXPECT_TRUE(m_bus.registerVirtualObject(path, this));
}

FakeScreenSaver::~FakeScreenSaver() {
    m_bus.unregisterService(service);
    m_bus.unregisterObject(path);
}

void FakeScreenSaver::appear() {
    EXPECT_TRUE(m_bus.registerService(service));
}

void FakeScreenSaver::vanish() {
    EXPECT_TRUE(m_bus.unregisterService(service));
}

void FakeScreenSaver::tell(const QVariant& isActive) const {
    auto message = QDBusMessage::createSignal(path, service, u"ActiveChanged"_s);
    message << isActive;
    m_bus.send(message);
}

QString FakeScreenSaver::introspect(const QString& /*path*/) const {
    return {};
}

bool FakeScreenSaver::handleMessage(
    const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    if (message.member() != "GetActive"_L1)
        return false;
    ++m_questions;
    m_bus.send(message.createReply(answer));
    return true;
}

} // namespace quorvane
