// SPDX-License-Identifier: MIT
#include "MediaKeysDaemon.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto busName = u"org.freedesktop.DBus"_s;
const auto busPath = u"/org/freedesktop/DBus"_s;
const auto daemonName = u"org.gnome.SettingsDaemon.MediaKeys"_s;

} // namespace

MediaKeysDaemon::MediaKeysDaemon(const QDBusConnection& bus, MainQueue& queue, QString path)
    : m_queue(queue),
      m_path(std::move(path)) {
    if (!bus.isConnected())
        return;
    follow(bus);
    ask(bus);
}

void MediaKeysDaemon::follow(QDBusConnection bus) {
    bus.connect(
        busName,
        busPath,
        busName,
        u"NameOwnerChanged"_s,
        {daemonName},
        u"sss"_s,
        this,
        SLOT(handleOwner(QString, QString, QString)));
    bus.connect(
        u"ca.desrt.dconf"_s,
        QString(),
        u"ca.desrt.dconf.Writer"_s,
        u"Notify"_s,
        this,
        SLOT(handleNotice(QDBusMessage)));
}

void MediaKeysDaemon::ask(const QDBusConnection& bus) {
    auto question = QDBusMessage::createMethodCall(busName, busPath, busName, u"NameHasOwner"_s);
    question << daemonName;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<bool> isThere = *answer;
        if (isThere.isValid() && isThere.value())
            setThere(true);
    });
}

void MediaKeysDaemon::handleOwner(
    const QString& /*name*/, const QString& /*oldOwner*/, const QString& newOwner) {
    setThere(!newOwner.isEmpty());
}

void MediaKeysDaemon::setThere(bool isThere) {
    m_isThere = isThere;
    const auto handler = m_changed;
    if (handler)
        handler();
}

/// Told is the folder or the setting that what was written has in common.
void MediaKeysDaemon::handleNotice(const QDBusMessage& signal) {
    if (signal.signature() != "sass"_L1)
        return;
    const auto written = signal.arguments().constFirst().toString();
    const bool isOurs = written.startsWith(m_path) || m_path.startsWith(written);
    if (!isOurs || std::exchange(m_isToldSoon, true))
        return;
    m_toldSoon = m_queue.after(writingDelay, [this] {
        m_isToldSoon = false;
        tellWritten();
    });
}

void MediaKeysDaemon::tellWritten() {
    const auto handler = m_written;
    if (handler)
        handler();
}

} // namespace quorvane
