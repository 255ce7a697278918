// SPDX-License-Identifier: MIT
#include "PortalSession.h"

#include "PortalLog.h"
#include "PortalNames.h"
#include "PortalPath.h"

#include <QDBusObjectPath>
#include <QPointer>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

PortalSession::PortalSession(
    PortalDesktop& portal, MainQueue& queue, QStringView interface, Callbacks callbacks)
    : m_portal(portal),
      m_queue(queue),
      m_interface(interface),
      m_callbacks(std::move(callbacks)),
      m_owner(portal.owner()) {
    connect(&m_portal, &PortalDesktop::lost, this, &PortalSession::end);
    create();
}

PortalSession::~PortalSession() {
    m_request.reset();
    if (!m_isOpen)
        return;
    m_portal.bus().send(QDBusMessage::createMethodCall(
        m_owner, m_path, portalname::session.toString(), u"Close"_s));
}

void PortalSession::create() {
    const auto token = portalpath::freshToken();
    m_path = portalpath::of(u"session", m_portal.bus(), token);
    m_portal.bus().connect(
        m_owner, m_path, portalname::session.toString(), u"Closed"_s, this, SLOT(end()));
    m_request = std::make_unique<PortalRequest>(
        m_portal,
        m_queue,
        PortalRequest::Question{
            m_interface, u"CreateSession", {}, {{u"session_handle_token"_s, token}}},
        patience,
        [this](const PortalResponse& response) { adopt(response); });
}

void PortalSession::adopt(const PortalResponse& response) {
    // The interface says that it is a text; a path means the same.
    const auto handle = response.results.value(u"session_handle"_s);
    const bool isOurs =
        handle == QVariant(m_path) || handle.value<QDBusObjectPath>() == QDBusObjectPath(m_path);
    m_isOpen = response.outcome == PortalResponse::Outcome::Success && isOurs;
    if (!m_isOpen)
        qCInfo(lcPortal, "no session");
    // A copy: it may destroy this.
    const auto created = m_callbacks.onCreated;
    created(m_isOpen);
}

void PortalSession::put(
    QStringView method,
    const QVariantList& arguments,
    const QVariantMap& options,
    std::optional<Seconds> limit,
    PortalRequest::Done done) {
    m_request = std::make_unique<PortalRequest>(
        m_portal,
        m_queue,
        PortalRequest::Question{
            m_interface,
            method,
            QVariantList{QVariant::fromValue(QDBusObjectPath(m_path))} + arguments,
            options},
        limit,
        std::move(done));
}

QDBusMessage PortalSession::question(QStringView method) const {
    return question(m_interface, method);
}

QDBusMessage PortalSession::question(QStringView interface, QStringView method) const {
    auto message = m_portal.question(interface, method);
    message << QVariant::fromValue(QDBusObjectPath(m_path));
    return message;
}

void PortalSession::end() {
    if (!std::exchange(m_isOpen, false))
        return;
    qCInfo(lcPortal, "the session is over");
    m_queue.async([self = QPointer(this)] {
        if (!self)
            return;
        const auto ended = self->m_callbacks.onEnded;
        ended();
    });
}

} // namespace quorvane
