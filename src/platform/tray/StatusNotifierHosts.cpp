// SPDX-License-Identifier: MIT
#include "TrayLog.h"

#include <platform_tray/StatusNotifierHosts.h>

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <limits>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// As libdbus has it.
constexpr int unlimited = std::numeric_limits<int>::max();

QDBusMessage question() {
    auto message = QDBusMessage::createMethodCall(
        StatusNotifierHosts::watcherName.toString(),
        StatusNotifierHosts::watcherPath.toString(),
        u"org.freedesktop.DBus.Properties"_s,
        u"Get"_s);
    message << StatusNotifierHosts::watcherName.toString() << u"IsStatusNotifierHostRegistered"_s;
    message.setAutoStartService(false);
    return message;
}

bool isNoAnswerYet(const QDBusMessage& answer) {
    const auto error = QDBusError(answer).type();
    return error == QDBusError::NoReply || error == QDBusError::Timeout ||
           error == QDBusError::TimedOut;
}

bool saysYes(const QDBusMessage& answer) {
    const auto value = answer.arguments().value(0).value<QDBusVariant>().variant();
    return value.metaType() == QMetaType::fromType<bool>() && value.toBool();
}

} // namespace

StatusNotifierHosts::StatusNotifierHosts(QDBusConnection bus, std::chrono::milliseconds patience)
    : m_bus(std::move(bus)) {
    if (!m_bus.isConnected()) {
        qCInfo(lcTray, "no session bus");
        return;
    }
    follow();
    askAtOnce(patience);
}

void StatusNotifierHosts::follow() {
    auto* watch = new QDBusServiceWatcher(
        watcherName.toString(), m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(
        watch,
        &QDBusServiceWatcher::serviceOwnerChanged,
        this,
        [this](const QString&, const QString&, const QString& owner) { adoptOwner(owner); });
    for (const auto& signal :
         {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s}) {
        // From any sender: to match one by its name, Qt would wait for the bus to tell its owner.
        m_bus.connect(
            QString(), watcherPath.toString(), watcherName.toString(), signal, this, SLOT(ask()));
    }
}

void StatusNotifierHosts::askAtOnce(std::chrono::milliseconds patience) {
    const auto answer = m_bus.call(question(), QDBus::Block, static_cast<int>(patience.count()));
    if (!isNoAnswerYet(answer)) {
        adopt(answer);
        return;
    }
    qCInfo(lcTray, "the watcher takes its time");
    m_presence = Presence::Unknown;
    ask();
}

void StatusNotifierHosts::ask() {
    // One host may go while another one stays: only the watcher knows.
    m_question = new QDBusPendingCallWatcher(m_bus.asyncCall(question(), unlimited), this);
    connect(
        m_question,
        &QDBusPendingCallWatcher::finished,
        this,
        [this](QDBusPendingCallWatcher* answered) {
            answered->deleteLater();
            if (answered == m_question)
                adopt(answered->reply());
        });
}

void StatusNotifierHosts::adoptOwner(const QString& owner) {
    m_question.clear();
    if (!owner.isEmpty())
        ask();
    setPresence(owner.isEmpty() ? Presence::Absent : Presence::Unknown);
}

void StatusNotifierHosts::adopt(const QDBusMessage& answer) {
    m_question.clear();
    if (answer.type() == QDBusMessage::ErrorMessage)
        qCInfo(lcTray, "the watcher: %ls", qUtf16Printable(answer.errorMessage()));
    setPresence(saysYes(answer) ? Presence::Present : Presence::Absent);
}

void StatusNotifierHosts::setPresence(Presence presence) {
    if (std::exchange(m_presence, presence) != presence)
        Q_EMIT changed();
}

} // namespace quorvane
