// SPDX-License-Identifier: MIT
#include "FreedesktopApplication.h"
#include "PlatformData.h"

#include <platform_dbus/DBusApplicationInstance.h>

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

// So must a bus that has stopped to answer. It has nobody to ask.
constexpr std::chrono::milliseconds busTimeout = 1s;

// Each more than the first means that a process ended between two questions to the bus.
constexpr int maxClaims = 3;

// The bus says so to what it starts (D-Bus Specification, "Message Bus Starting Services").
FreedesktopApplication::Start howStarted() {
    return qEnvironmentVariableIsSet("DBUS_STARTER_ADDRESS")
               ? FreedesktopApplication::Start::ByBus
               : FreedesktopApplication::Start::ByUser;
}

// Of the message RequestName, and what it answers (D-Bus Specification, "Message Bus Messages").
constexpr uint doNotQueue = 4;
constexpr uint queue = 0;
constexpr uint primaryOwner = 1;
constexpr uint alreadyOwner = 4;

QDBusMessage busMessage(const QString& method, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, method);
    message.setArguments(arguments);
    return message;
}

} // namespace

DBusApplicationInstance::DBusApplicationInstance(
    const QDBusConnection& bus, std::optional<BusSocket> socket)
    : m_bus(bus),
      m_socket(std::move(socket)),
      m_application(new FreedesktopApplication(howStarted(), &m_object)) {
}

DBusApplicationInstance::~DBusApplicationInstance() {
    m_bus.unregisterObject(objectPath.toString());
}

ApplicationInstance::Role
DBusApplicationInstance::claim(Request request, const ActivationToken& token) {
    const auto role = claimOnce(request, token);
    if (role != Role::Second)
        m_follower = std::make_unique<SessionBusFollower>(
            m_bus, m_socket, [this](const QDBusConnection& bus) { serve(bus); });
    return role;
}

ApplicationInstance::Role
DBusApplicationInstance::claimOnce(Request request, const ActivationToken& token) {
    if (!m_bus.isConnected()) {
        qCInfo(lcInstance, "no session bus");
        return Role::Alone;
    }
    // The object first: a program that sees the name may call at once.
    m_bus.registerObject(objectPath.toString(), &m_object);
    for (int attempt = 0; attempt < maxClaims; ++attempt) {
        const QDBusReply<uint> reply =
            askBus(u"RequestName"_s, {serviceName.toString(), doNotQueue});
        if (!reply.isValid()) {
            qCInfo(lcInstance, "no name on the bus: %ls", qUtf16Printable(reply.error().message()));
            return Role::Alone;
        }
        if (reply.value() == primaryOwner || reply.value() == alreadyOwner)
            return Role::First;
        if (request == Request::Nothing || activateFirst(token))
            return Role::Second;
    }
    return Role::Alone;
}

void DBusApplicationInstance::release() {
    m_follower.reset();
    if (m_bus.isConnected())
        m_bus.asyncCall(busMessage(u"ReleaseName"_s, {serviceName.toString()}));
}

void DBusApplicationInstance::onReopen(std::function<void(const ActivationToken&)> handler) {
    m_application->setReopenHandler(std::move(handler));
}

void DBusApplicationInstance::onAction(
    std::function<void(const QString& name, const ActivationToken&)> handler) {
    m_application->setActionHandler(std::move(handler));
}

bool DBusApplicationInstance::activateFirst(const ActivationToken& token) {
    auto call = QDBusMessage::createMethodCall(
        serviceName.toString(),
        objectPath.toString(),
        u"org.freedesktop.Application"_s,
        u"Activate"_s);
    call << platformDataOf(token);
    const auto reply = m_bus.call(call, QDBus::Block, static_cast<int>(activationTimeout.count()));
    if (reply.type() != QDBusMessage::ErrorMessage)
        return true;
    qCInfo(lcInstance, "the first process: %ls", qUtf16Printable(reply.errorMessage()));
    // A first process that hangs is still the first.
    const QDBusReply<bool> isThere = askBus(u"NameHasOwner"_s, {serviceName.toString()});
    return isThere.isValid() && isThere.value();
}

QDBusMessage DBusApplicationInstance::askBus(const QString& method, const QVariantList& arguments) {
    return m_bus.call(
        busMessage(method, arguments), QDBus::Block, static_cast<int>(busTimeout.count()));
}

void DBusApplicationInstance::serve(const QDBusConnection& bus) {
    m_bus = bus;
    m_bus.registerObject(objectPath.toString(), &m_object);
    m_bus.asyncCall(busMessage(u"RequestName"_s, {serviceName.toString(), queue}));
}

} // namespace quorvane
