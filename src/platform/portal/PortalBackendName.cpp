// SPDX-License-Identifier: MIT
#include "PortalBackendName.h"

#include "PortalNames.h"

#include <platform_portal/PortalDesktop.h>

#include <QDBusPendingCallWatcher>

#include <array>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct KnownBackend {
    QStringView service; ///< the end of its name on the bus
    QStringView name;    ///< what people call the desktop
};

constexpr std::array knownBackends{
    KnownBackend{u"cosmic", u"COSMIC"},
    KnownBackend{u"gnome", u"GNOME"},
    KnownBackend{u"hyprland", u"Hyprland"},
    KnownBackend{u"kde", u"KDE"},
};

const auto prefix = u"org.freedesktop.impl.portal.desktop."_s;
const auto busName = u"org.freedesktop.DBus"_s;

} // namespace

PortalBackendName::PortalBackendName(QDBusConnection bus, QString interface)
    : m_bus(std::move(bus)),
      m_interface(std::move(interface)) {
}

void PortalBackendName::look(std::function<void()> found) {
    m_found = std::move(found);
    m_having.clear();
    ++m_looks;
    const auto question = QDBusMessage::createMethodCall(
        busName, u"/org/freedesktop/DBus"_s, busName, u"ListNames"_s);
    ask(question,
        [this](const QDBusMessage& answer) { meet(answer.arguments().value(0).toStringList()); });
}

void PortalBackendName::meet(const QStringList& namesOnTheBus) {
    m_unanswered = 1; // us, while we ask
    for (const auto& backend : knownBackends) {
        const auto service = prefix + backend.service.toString();
        if (!namesOnTheBus.contains(service))
            continue;
        ++m_unanswered;
        auto question = QDBusMessage::createMethodCall(
            service,
            portalname::object.toString(),
            u"org.freedesktop.DBus.Properties"_s,
            u"GetAll"_s);
        question << m_interface;
        question.setAutoStartService(false);
        ask(question, [this, name = backend.name.toString()](const QDBusMessage& answer) {
            count(name, answer);
        });
    }
    settle();
}

void PortalBackendName::count(const QString& name, const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ReplyMessage)
        m_having.append(name);
    settle();
}

void PortalBackendName::settle() {
    if (--m_unanswered > 0)
        return;
    m_name = m_having.size() == 1 ? m_having.constFirst() : QString();
    m_found();
}

void PortalBackendName::ask(const QDBusMessage& question, Answered answered) {
    constexpr auto limit = static_cast<int>(PortalDesktop::patience.count());
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question, limit), this);
    connect(
        answer,
        &QDBusPendingCallWatcher::finished,
        this,
        [this, answer, look = m_looks, answered = std::move(answered)] {
            answer->deleteLater();
            if (look == m_looks)
                answered(answer->reply());
        });
}

} // namespace quorvane
