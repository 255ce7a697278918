// SPDX-License-Identifier: MIT
#include "PortalNames.h"
#include "PortalRequest.h"

#include <platform_portal/PortalAutostart.h>
#include <settings/SettingsTable.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;
using Outcome = PortalResponse::Outcome;

namespace {

const auto noParentWindow = QString();
const auto autostartKey = u"autostart"_s;

} // namespace

PortalAutostart::PortalAutostart(
    std::shared_ptr<PortalDesktop> portal, MainQueue& queue, DefaultsStore& defaults)
    : m_portal(std::move(portal)),
      m_queue(queue),
      m_defaults(defaults) {
    if (m_portal) {
        connect(m_portal.get(), &PortalDesktop::lost, this, [this] {
            if (m_state == Request::Asked)
                settle(Request::Refused);
        });
    }
}

PortalAutostart::~PortalAutostart() = default;

bool PortalAutostart::isOn() const {
    return setting::portalAutostart.valueIn(m_defaults);
}

void PortalAutostart::setOn(bool on) {
    m_question.reset();
    if (!m_portal)
        return settle(Request::Refused);
    m_meeting = std::make_unique<QObject>();
    settle(Request::Asked);
    m_portal->meet(portalname::background, m_meeting.get(), [this, on](const auto& properties) {
        if (properties)
            ask(on);
        else
            settle(Request::Refused);
    });
}

void PortalAutostart::onChanged(std::function<void()> handler) {
    m_changed = std::move(handler);
}

void PortalAutostart::ask(bool on) {
    m_question = std::make_unique<PortalRequest>(
        *m_portal,
        m_queue,
        PortalRequest::Question{
            portalname::background,
            u"RequestBackground",
            {noParentWindow},
            {{u"reason"_s, tr("Quorvane starts when you log in, so that its shortcut is there.")},
             {autostartKey, on},
             {u"commandline"_s, QStringList{u"quorvane"_s, u"--hidden"_s}},
             {u"dbus-activatable"_s, false}}},
        std::nullopt,
        [this, on](const PortalResponse& response) { take(on, response); });
}

/// A refusal says that there is no entry, too.
void PortalAutostart::take(bool on, const PortalResponse& response) {
    m_question.reset();
    if (response.outcome == Outcome::Failed)
        return settle(Request::Refused);
    const bool isGranted = response.results.value(autostartKey).toBool();
    setting::portalAutostart.store(m_defaults, isGranted);
    settle(isGranted == on ? Request::Settled : Request::Refused);
}

void PortalAutostart::settle(Request state) {
    m_state = state;
    if (const auto handler = m_changed)
        handler();
}

} // namespace quorvane
