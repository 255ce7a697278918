// SPDX-License-Identifier: MIT
#include <platform_dbus/SessionBusFollower.h>

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSocketNotifier>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcBus, "quorvane.bus", QtFatalMsg)

QString addressOf(const BusSocket& socket) {
    return u"unix:path="_s + QString::fromLatin1(socket.path.toPercentEncoding("/-_."));
}

} // namespace

SessionBusFollower::SessionBusFollower(
    const QDBusConnection& bus, std::optional<BusSocket> socket, Connected onConnected)
    : m_socket(std::move(socket)),
      m_onConnected(std::move(onConnected)) {
    connect(&m_folder, &QFileSystemWatcher::directoryChanged, this, &SessionBusFollower::greet);
    if (bus.isConnected())
        follow(bus);
    else
        lose();
}

SessionBusFollower::~SessionBusFollower() {
    if (m_connections > 0)
        QDBusConnection::disconnectFromBus(connectionName());
}

void SessionBusFollower::follow(const QDBusConnection& bus) {
    // The library itself says it, on the connection that has ended.
    QDBusConnection(bus).connect(
        QString(),
        u"/org/freedesktop/DBus/Local"_s,
        u"org.freedesktop.DBus.Local"_s,
        u"Disconnected"_s,
        this,
        SLOT(lose()));
}

void SessionBusFollower::lose() {
    if (!m_socket || m_socket->isAbstract)
        return;
    qCInfo(lcBus, "no session bus; waiting for one");
    m_folder.addPath(QFileInfo(QFile::decodeName(m_socket->path)).path());
    greet();
}

void SessionBusFollower::greet() {
    m_words.reset();
    m_greeting = std::make_unique<BusGreeting>(*m_socket);
    if (m_greeting->state() != BusGreeting::State::Waiting || m_greeting->descriptor() < 0)
        return;
    m_words = std::make_unique<QSocketNotifier>(m_greeting->descriptor(), QSocketNotifier::Read);
    connect(m_words.get(), &QSocketNotifier::activated, this, &SessionBusFollower::hear);
}

void SessionBusFollower::hear() {
    m_greeting->proceed();
    if (m_greeting->state() == BusGreeting::State::Waiting)
        return;
    m_words->setEnabled(false);
    if (m_greeting->state() == BusGreeting::State::Answered)
        connectAnew();
}

void SessionBusFollower::connectAnew() {
    if (m_connections > 0)
        QDBusConnection::disconnectFromBus(connectionName());
    ++m_connections;
    // It has just answered, so this does not wait.
    const auto bus = QDBusConnection::connectToBus(addressOf(*m_socket), connectionName());
    if (!bus.isConnected())
        return;
    qCInfo(lcBus, "the session bus is back");
    m_folder.removePaths(m_folder.directories());
    follow(bus);
    m_onConnected(bus);
}

QString SessionBusFollower::connectionName() const {
    return u"quorvane-session-bus-%1"_s.arg(m_connections);
}

} // namespace quorvane
