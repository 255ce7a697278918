// SPDX-License-Identifier: MIT
#include "FakePortal.h"

#include <QDBusMetaType>
#include <gtest/gtest.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto service = PortalAppearance::serviceName.toString();
const auto path = PortalAppearance::objectPath.toString();
const auto interface = PortalAppearance::interfaceName.toString();

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const Triple& triple) {
    argument.beginStructure();
    argument << triple.first << triple.second << triple.third;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Triple& triple) {
    argument.beginStructure();
    argument >> triple.first >> triple.second >> triple.third;
    argument.endStructure();
    return argument;
}

FakePortal::FakePortal(QDBusConnection bus) : m_bus(std::move(bus)) {
    qDBusRegisterMetaType<Triple>();
    qDBusRegisterMetaType<Settings>();
    EXPECT_TRUE(m_bus.registerVirtualObject(path, this));
}

FakePortal::~FakePortal() {
    m_bus.unregisterObject(path);
}

void FakePortal::appear() {
    EXPECT_TRUE(m_bus.registerService(service));
}

void FakePortal::vanish() {
    EXPECT_TRUE(m_bus.unregisterService(service));
}

void FakePortal::answer(const QVariant& reply) {
    m_answer = [reply](const QDBusMessage& question) {
        return question.createReply(reply);
    };
    answerPending();
}

void FakePortal::answerWithError() {
    m_answer = [](const QDBusMessage& question) {
        return question.createErrorReply(QDBusError::Failed, u"not today"_s);
    };
    answerPending();
}

void FakePortal::announce(const QString& nameSpace, const QString& key, const QVariant& value) {
    announceAnything({nameSpace, key, QVariant::fromValue(QDBusVariant(value))});
}

void FakePortal::announceAnything(const QVariantList& arguments) {
    auto signal = QDBusMessage::createSignal(path, interface, u"SettingChanged"_s);
    signal.setArguments(arguments);
    m_bus.send(signal);
}

QString FakePortal::introspect(const QString& /*path*/) const {
    return {};
}

bool FakePortal::handleMessage(const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    if (message.interface() != interface || message.member() != "ReadAll"_L1)
        return false;
    m_questions.append(message);
    m_pending.append(message);
    answerPending();
    return true;
}

void FakePortal::answerPending() {
    if (!m_answer)
        return;
    for (const auto& question : std::exchange(m_pending, {}))
        m_bus.send(m_answer(question));
}

} // namespace quorvane
