// SPDX-License-Identifier: MIT
#include "FakeWatcher.h"

#include <platform_tray/StatusNotifierHosts.h>

#include <QDBusVariant>
#include <gtest/gtest.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto name = StatusNotifierHosts::watcherName.toString();
const auto path = StatusNotifierHosts::watcherPath.toString();

} // namespace

FakeWatcher::FakeWatcher(QDBusConnection bus) : m_bus(std::move(bus)), m_answer(true) {
    moveToThread(&m_thread);
    m_thread.start();
    EXPECT_TRUE(m_bus.registerVirtualObject(path, this));
}

FakeWatcher::~FakeWatcher() {
    m_bus.unregisterObject(path);
    m_thread.quit();
    m_thread.wait();
}

void FakeWatcher::appear() {
    EXPECT_TRUE(m_bus.registerService(name));
}

void FakeWatcher::vanish() {
    EXPECT_TRUE(m_bus.unregisterService(name));
}

void FakeWatcher::answer(const QVariant& isHostRegistered) {
    const std::lock_guard lock(m_mutex);
    m_answer = isHostRegistered;
    answerPending();
}

void FakeWatcher::answerWithError() {
    answer(QVariant());
}

void FakeWatcher::hang() {
    const std::lock_guard lock(m_mutex);
    m_answer.reset();
}

void FakeWatcher::announce(const QString& member) {
    m_bus.send(QDBusMessage::createSignal(path, name, member));
}

qsizetype FakeWatcher::questions() const {
    const std::lock_guard lock(m_mutex);
    return m_questions;
}

QString FakeWatcher::introspect(const QString& /*path*/) const {
    return {};
}

bool FakeWatcher::handleMessage(
    const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    const QVariantList asked{name, u"IsStatusNotifierHostRegistered"_s};
    if (message.member() != "Get"_L1 || message.arguments() != asked)
        return false;
    const std::lock_guard lock(m_mutex);
    ++m_questions;
    m_pending.append(message);
    answerPending();
    return true;
}

void FakeWatcher::answerPending() {
    if (!m_answer)
        return;
    for (const auto& question : std::exchange(m_pending, {}))
        m_bus.send(answerTo(question));
}

QDBusMessage FakeWatcher::answerTo(const QDBusMessage& question) const {
    if (!m_answer->isValid())
        return question.createErrorReply(QDBusError::Failed, u"not today"_s);
    return question.createReply(QVariant::fromValue(QDBusVariant(*m_answer)));
}

} // namespace quorvane
