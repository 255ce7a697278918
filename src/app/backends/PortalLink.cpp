// SPDX-License-Identifier: MIT
#include "PortalLink.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <chrono>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// The bus itself is asked, not the portal, which may have to be started first.
constexpr std::chrono::milliseconds patience{1000};
constexpr std::chrono::milliseconds portalPatience{500};

const auto portalName = u"org.freedesktop.portal.Desktop"_s;

QVariant askBus(const QString& method, const QVariantList& arguments) {
    auto question = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, method);
    question.setArguments(arguments);
    const auto answer = QDBusConnection::sessionBus().call(
        question, QDBus::Block, static_cast<int>(patience.count()));
    const bool isAnswered = answer.type() == QDBusMessage::ReplyMessage;
    return isAnswered ? answer.arguments().value(0) : QVariant();
}

bool canBeStarted(const QString& name) {
    return askBus(u"ListActivatableNames"_s, {}).toStringList().contains(name);
}

} // namespace

bool PortalLink::isRunning(const QString& name) {
    return askBus(u"NameHasOwner"_s, {name}).toBool();
}

bool PortalLink::offers(const QString& interface) {
    if (!isRunning(portalName))
        return false;
    auto question = QDBusMessage::createMethodCall(
        portalName,
        u"/org/freedesktop/portal/desktop"_s,
        u"org.freedesktop.DBus.Properties"_s,
        u"GetAll"_s);
    question << interface;
    question.setAutoStartService(false);
    const auto answer = QDBusConnection::sessionBus().call(
        question, QDBus::Block, static_cast<int>(portalPatience.count()));
    return answer.type() == QDBusMessage::ReplyMessage;
}

bool PortalLink::mayOffer(const QString& interface) {
    return isRunning(portalName) ? offers(interface) : canBeStarted(portalName);
}

std::shared_ptr<PortalDesktop> PortalLink::portal(Wish wish) {
    if (m_portal || !QDBusConnection::sessionBus().isConnected())
        return m_portal;
    if (wish == Wish::Free && !isRunning(portalName) && !canBeStarted(portalName))
        return nullptr;
    const auto bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"quorvane-portal"_s);
    if (bus.isConnected())
        m_portal = std::make_shared<PortalDesktop>(bus);
    return m_portal;
}

} // namespace quorvane
