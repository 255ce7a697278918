// SPDX-License-Identifier: MIT
#include <platform_dbus/DBusScreenSaver.h>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// After that it counts as silent; its signal is heard nevertheless.
constexpr int patience = 10'000; // milliseconds

} // namespace

DBusScreenSaver::DBusScreenSaver(QDBusConnection bus, QString name)
    : m_bus(std::move(bus)),
      m_name(std::move(name)),
      m_owners(m_name, m_bus, QDBusServiceWatcher::WatchForOwnerChange) {
    connect(&m_owners, &QDBusServiceWatcher::serviceOwnerChanged, this, &DBusScreenSaver::setOwner);
    m_bus.connect(m_name, path(), m_name, u"ActiveChanged"_s, this, SLOT(setActive(bool)));
    m_bus.connect(
        QString(),
        u"/org/freedesktop/DBus/Local"_s,
        u"org.freedesktop.DBus.Local"_s,
        u"Disconnected"_s,
        this,
        SLOT(lose()));
    ask();
}

DBusScreenSaver::~DBusScreenSaver() = default;

void DBusScreenSaver::setOwner(
    const QString& /*name*/, const QString& /*before*/, const QString& after) {
    lose();
    if (!after.isEmpty())
        ask();
}

void DBusScreenSaver::ask() {
    auto question = QDBusMessage::createMethodCall(m_name, path(), m_name, u"GetActive"_s);
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question, patience), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const auto reply = answer->reply();
        if (reply.signature() == "b"_L1)
            setActive(reply.arguments().constFirst().toBool());
    });
}

QString DBusScreenSaver::path() const {
    return u'/' + QString(m_name).replace(u'.', u'/');
}

} // namespace quorvane
