// SPDX-License-Identifier: MIT
#include "PortalLog.h"
#include "PortalNames.h"

#include <platform_portal/PortalDesktop.h>

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPortal, "quorvane.portal", QtFatalMsg)

namespace {

constexpr auto applicationId = "org.quorvane.Quorvane"_L1; ///< of the desktop entry
constexpr auto busName = "org.freedesktop.DBus"_L1;

/// Asks the bus which process has the portal's name.
QDBusMessage ownerQuestion() {
    auto question = QDBusMessage::createMethodCall(
        busName, u"/org/freedesktop/DBus"_s, busName, u"GetNameOwner"_s);
    return question << portalname::service.toString();
}

} // namespace

PortalDesktop::PortalDesktop(QDBusConnection bus)
    : m_bus(std::move(bus)),
      m_owners(portalname::service.toString(), m_bus, QDBusServiceWatcher::WatchForOwnerChange) {
    connect(&m_owners, &QDBusServiceWatcher::serviceOwnerChanged, this, &PortalDesktop::setOwner);
    m_bus.connect(
        QString(),
        u"/org/freedesktop/DBus/Local"_s,
        u"org.freedesktop.DBus.Local"_s,
        u"Disconnected"_s,
        this,
        SLOT(lose()));
}

PortalDesktop::~PortalDesktop() = default;

void PortalDesktop::follow(
    QStringView interface, const QString& signal, QObject* receiver, const char* slot) {
    m_bus.connect(
        m_owner, portalname::object.toString(), interface.toString(), signal, receiver, slot);
}

void PortalDesktop::meet(QStringView interface, QObject* context, Met met) {
    if (!m_owner.isEmpty())
        return readProperties(interface, context, std::move(met));
    auto introduction = QDBusMessage::createMethodCall(
        portalname::service.toString(),
        portalname::object.toString(),
        portalname::registry.toString(),
        u"Register"_s);
    introduction << QString(applicationId) << QVariantMap();
    // A portal without the registry (before 1.20) answers with an error, and so does one that two
    // services of ours meet at once.
    ask(introduction,
        context,
        [this, interface, context, met = std::move(met)](const QDBusMessage& answer) {
            if (answer.type() == QDBusMessage::ErrorMessage)
                qCInfo(lcPortal, "not registered: %ls", qUtf16Printable(answer.errorMessage()));
            findOwner(interface, context, met);
        });
}

/// The answer itself does not say who sent it: Qt 6.8 keeps that for signals and calls.
void PortalDesktop::findOwner(QStringView interface, QObject* context, Met met) {
    ask(ownerQuestion(),
        context,
        [this, interface, context, met = std::move(met)](const QDBusMessage& answer) {
            if (answer.signature() != "s"_L1) {
                qCInfo(lcPortal, "no portal: %ls", qUtf16Printable(answer.errorMessage()));
                return met(std::nullopt);
            }
            m_owner = answer.arguments().constFirst().toString();
            readProperties(interface, context, met);
        });
}

void PortalDesktop::readProperties(QStringView interface, QObject* context, Met met) {
    auto properties = question(u"org.freedesktop.DBus.Properties", u"GetAll");
    properties << interface.toString();
    ask(properties,
        context,
        [name = interface.toString(), met = std::move(met)](const QDBusMessage& answer) {
            if (answer.signature() == "a{sv}"_L1)
                return met(qdbus_cast<QVariantMap>(answer.arguments().constFirst()));
            qCInfo(
                lcPortal,
                "no %ls: %ls",
                qUtf16Printable(name),
                qUtf16Printable(answer.errorMessage()));
            met(std::nullopt);
        });
}

void PortalDesktop::ask(
    const QDBusMessage& question,
    QObject* context,
    Answered answered,
    std::chrono::milliseconds limit) {
    auto* answer = new QDBusPendingCallWatcher(
        m_bus.asyncCall(question, static_cast<int>(limit.count())), context);
    connect(
        answer,
        &QDBusPendingCallWatcher::finished,
        context,
        [answer, answered = std::move(answered)] {
            answer->deleteLater();
            answered(answer->reply());
        });
}

QDBusMessage PortalDesktop::question(QStringView interface, QStringView method) const {
    return QDBusMessage::createMethodCall(
        m_owner, portalname::object.toString(), interface.toString(), method.toString());
}

void PortalDesktop::setOwner(
    const QString& /*name*/, const QString& /*before*/, const QString& after) {
    // The one that a question of ours has started may have been met before this is told.
    if (after == m_owner)
        return;
    lose();
    if (!after.isEmpty())
        Q_EMIT appeared();
}

void PortalDesktop::lose() {
    if (!std::exchange(m_owner, {}).isEmpty())
        Q_EMIT lost();
}

} // namespace quorvane
