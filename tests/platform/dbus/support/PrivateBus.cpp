// SPDX-License-Identifier: MIT
#include "PrivateBus.h"

#include <QFile>
#include <QUuid>
#include <gtest/gtest.h>

#include <csignal>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto configuration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1/socket</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)"_L1;

} // namespace

PrivateBus::PrivateBus() {
    QFile file(m_folder.filePath(u"bus.conf"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QString(configuration).arg(m_folder.path()).toUtf8());
    file.close();
    begin();
}

PrivateBus::~PrivateBus() {
    for (const auto& name : m_connections)
        QDBusConnection::disconnectFromBus(name);
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

void PrivateBus::begin() {
    m_daemon.start(
        u"dbus-daemon"_s,
        {u"--config-file=%1/bus.conf"_s.arg(m_folder.path()), u"--nofork"_s, u"--print-address"_s});
    EXPECT_TRUE(m_daemon.waitForReadyRead());
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
}

void PrivateBus::end() {
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void PrivateBus::stop() const {
    ::kill(static_cast<pid_t>(m_daemon.processId()), SIGSTOP);
}

void PrivateBus::goOn() const {
    ::kill(static_cast<pid_t>(m_daemon.processId()), SIGCONT);
}

BusSocket PrivateBus::socket() const {
    return {QFile::encodeName(m_folder.filePath(u"socket"_s)), false};
}

QDBusConnection PrivateBus::connection() {
    m_connections.append(QUuid::createUuid().toString());
    auto connection = QDBusConnection::connectToBus(m_address, m_connections.constLast());
    EXPECT_TRUE(connection.isConnected());
    return connection;
}

} // namespace quorvane
