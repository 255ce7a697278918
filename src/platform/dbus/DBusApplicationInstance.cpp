// SPDX-License-Identifier: MIT
#include "FreedesktopApplication.h"

#include <platform_dbus/DBusApplicationInstance.h>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QLoggingCategory>

#include <chrono>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(lcInstance, "quorvane.instance", QtFatalMsg)

// A first process that hangs must not keep the second one from ending.
constexpr std::chrono::milliseconds activationTimeout = 2s;

// Each more than the first means that a process ended between two questions to the bus.
constexpr int maxClaims = 3;

// The bus says so to what it starts (D-Bus Specification, "Message Bus Starting Services").
FreedesktopApplication::Start howStarted() {
    return qEnvironmentVariableIsSet("DBUS_STARTER_ADDRESS")
               ? FreedesktopApplication::Start::ByBus
               : FreedesktopApplication::Start::ByUser;
}

} // namespace

DBusApplicationInstance::DBusApplicationInstance()
    : m_bus(QDBusConnection::sessionBus()),
      m_application(new FreedesktopApplication(howStarted(), &m_object)) {
}

DBusApplicationInstance::~DBusApplicationInstance() {
    m_bus.unregisterObject(objectPath.toString());
}

ApplicationInstance::Role DBusApplicationInstance::claim() {
    if (!m_bus.isConnected()) {
        qCInfo(lcInstance, "no session bus");
        return Role::Alone;
    }
    // The object first: a program that sees the name may call at once.
    m_bus.registerObject(objectPath.toString(), &m_object);
    for (int attempt = 0; attempt < maxClaims; ++attempt) {
        const auto reply = m_bus.interface()->registerService(
            serviceName.toString(),
            QDBusConnectionInterface::DontQueueService,
            QDBusConnectionInterface::DontAllowReplacement);
        if (!reply.isValid()) {
            qCInfo(lcInstance, "no name on the bus: %ls", qUtf16Printable(reply.error().message()));
            return Role::Alone;
        }
        if (reply.value() == QDBusConnectionInterface::ServiceRegistered)
            return Role::First;
        if (activateFirst())
            return Role::Second;
    }
    return Role::Alone;
}

void DBusApplicationInstance::release() {
    if (m_bus.isConnected())
        m_bus.interface()->unregisterService(serviceName.toString());
}

void DBusApplicationInstance::onReopen(std::function<void()> handler) {
    m_application->setReopenHandler(std::move(handler));
}

void DBusApplicationInstance::onAction(std::function<void(const QString& name)> handler) {
    m_application->setActionHandler(std::move(handler));
}

bool DBusApplicationInstance::activateFirst() {
    auto call = QDBusMessage::createMethodCall(
        serviceName.toString(),
        objectPath.toString(),
        u"org.freedesktop.Application"_s,
        u"Activate"_s);
    call << QVariantMap{};
    const auto reply = m_bus.call(call, QDBus::Block, static_cast<int>(activationTimeout.count()));
    if (reply.type() != QDBusMessage::ErrorMessage)
        return true;
    qCInfo(lcInstance, "the first process: %ls", qUtf16Printable(reply.errorMessage()));
    // A first process that hangs is still the first.
    return m_bus.interface()->isServiceRegistered(serviceName.toString());
}

} // namespace quorvane
