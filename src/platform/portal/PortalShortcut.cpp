// SPDX-License-Identifier: MIT
#include "PortalBackendName.h"
#include "PortalLog.h"
#include "PortalNames.h"
#include "PortalSession.h"
#include "PortalShortcutEntry.h"
#include "ShortcutTrigger.h"

#include <platform_portal/PortalShortcut.h>
#include <settings/SettingsTable.h>

#include <QPointer>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;
using Outcome = PortalResponse::Outcome;

namespace {

const auto shortcutId = u"toggle"_s;
const auto noParentWindow = QString();
constexpr qsizetype longestToken = 256;

/// Qt's Wayland plugin takes it from there for the next window that wants the focus.
void keepActivationToken(const QVariant& token) {
    const auto bytes = token.toString().toUtf8();
    if (!bytes.isEmpty() && bytes.size() <= longestToken)
        qputenv("XDG_ACTIVATION_TOKEN", bytes);
}

} // namespace

PortalShortcut::PortalShortcut(
    std::shared_ptr<PortalDesktop> portal, MainQueue& queue, DefaultsStore& defaults)
    : m_portal(std::move(portal)),
      m_queue(queue),
      m_defaults(defaults),
      m_backendName(std::make_unique<PortalBackendName>(
          m_portal->bus(), portalname::globalShortcutsOfTheDesktop.toString())) {
    connect(m_portal.get(), &PortalDesktop::lost, this, &PortalShortcut::lose);
    connect(m_portal.get(), &PortalDesktop::appeared, this, &PortalShortcut::look);
    look();
}

PortalShortcut::~PortalShortcut() = default;

QString PortalShortcut::desktopName() const {
    return m_backendName->name();
}

std::optional<KeyChord> PortalShortcut::chord() const {
    if (!m_isBound)
        return std::nullopt;
    return m_understood ? m_understood : m_wished;
}

void PortalShortcut::bind(const KeyChord& chord) {
    m_wished = chord;
    m_portal->meet(portalname::globalShortcuts, this, [this](const auto& properties) {
        m_isOffered = properties.has_value();
        // Shortcuts are bound once in a session, so this takes another one.
        if (m_isOffered)
            makeSession([this] { sendBinding(); });
        else
            lose();
    });
}

void PortalShortcut::unbind() {
    setting::portalShortcut.store(m_defaults, false);
    lose();
}

void PortalShortcut::watch(const KeyChord& chord) {
    if (m_wished && *m_wished != chord)
        return bind(chord);
    m_wished = chord;
    if (m_understood && *m_understood != chord && m_presses.chordChanged) {
        m_wished = m_understood;
        m_queue.async([self = QPointer(this)] {
            if (self)
                self->tellChord();
        });
    }
}

void PortalShortcut::tellChord() const {
    // A copy: it may replace the tap, and with it the presses.
    const auto tell = m_presses.chordChanged;
    if (tell && m_understood)
        tell(*m_understood);
}

/// Without a question to the user.
void PortalShortcut::look() {
    m_portal->meet(portalname::globalShortcuts, this, [this](const auto& properties) {
        m_isOffered = properties.has_value();
        if (m_isOffered && !m_session && setting::portalShortcut.valueIn(m_defaults))
            makeSession([this] { recall(); });
        if (m_isOffered)
            m_backendName->look([this] { m_changed(); });
        m_changed();
    });
}

/// From the portal that was met, to the sessions of any time.
void PortalShortcut::listen() {
    if (std::exchange(m_listenedOwner, m_portal->owner()) == m_portal->owner())
        return;
    m_portal->follow(
        portalname::globalShortcuts, u"Activated"_s, this, SLOT(activate(QDBusMessage)));
    m_portal->follow(
        portalname::globalShortcuts, u"Deactivated"_s, this, SLOT(deactivate(QDBusMessage)));
    m_portal->follow(
        portalname::globalShortcuts, u"ShortcutsChanged"_s, this, SLOT(adoptChange(QDBusMessage)));
}

void PortalShortcut::makeSession(Made made) {
    m_session.reset();
    listen();
    m_session = std::make_unique<PortalSession>(
        *m_portal,
        m_queue,
        portalname::globalShortcuts,
        PortalSession::Callbacks{
            [this, made = std::move(made)](bool isCreated) {
                if (isCreated)
                    made();
                else
                    lose();
            },
            [this] {
                lose();
            }});
}

/// What was bound in an earlier run is listed, and is bound again without a question.
void PortalShortcut::recall() {
    m_session->put(
        u"ListShortcuts", {}, {}, PortalSession::patience, [this](const PortalResponse& response) {
            if (portalshortcuts::traitsOf(shortcutId, response.results.value(u"shortcuts"_s)))
                sendBinding();
            else
                lose();
        });
}

void PortalShortcut::sendBinding() {
    QVariantMap traits{{u"description"_s, tr("Show Quorvane")}};
    const auto trigger = m_wished ? shortcuttrigger::preferred(*m_wished) : QString();
    if (!trigger.isEmpty())
        traits.insert(u"preferred_trigger"_s, trigger);
    m_session->put(
        u"BindShortcuts",
        {portalshortcuts::sent({{shortcutId, traits}}), noParentWindow},
        {},
        std::nullopt,
        [this](const PortalResponse& response) { adopt(response.results.value(u"shortcuts"_s)); });
}

/// A portal may answer with success and no shortcut, where its backend has not bound any.
void PortalShortcut::adopt(const QVariant& list) {
    const auto traits = portalshortcuts::traitsOf(shortcutId, list);
    if (!traits) {
        qCInfo(lcPortal, "the portal has not bound the shortcut");
        return lose();
    }
    m_understood = shortcuttrigger::understood(traits->value(u"trigger_description"_s).toString());
    setting::portalShortcut.store(m_defaults, true);
    setBound(true);
    qCInfo(lcPortal, "the portal has bound the shortcut");
    if (m_wished)
        watch(*m_wished);
}

void PortalShortcut::lose() {
    m_session.reset();
    m_understood.reset();
    setDown(false);
    setBound(false);
}

void PortalShortcut::setBound(bool isBound) {
    if (std::exchange(m_isBound, isBound) != isBound && m_presses.bindingChanged)
        m_presses.bindingChanged();
    m_changed();
}

bool PortalShortcut::isOurs(const QDBusMessage& signal) const {
    return m_isBound && signal.signature() == "osta{sv}"_L1 &&
           signal.arguments().at(0).value<QDBusObjectPath>().path() == m_session->path() &&
           signal.arguments().at(1) == shortcutId;
}

void PortalShortcut::activate(const QDBusMessage& signal) {
    if (!isOurs(signal))
        return;
    const auto options = qdbus_cast<QVariantMap>(signal.arguments().at(3));
    keepActivationToken(options.value(u"activation_token"_s));
    m_isDown = true;
    if (m_presses.pressed)
        m_presses.pressed();
}

void PortalShortcut::deactivate(const QDBusMessage& signal) {
    if (isOurs(signal))
        setDown(false);
}

void PortalShortcut::setDown(bool isDown) {
    if (std::exchange(m_isDown, isDown) && !isDown && m_presses.released)
        m_presses.released();
}

void PortalShortcut::adoptChange(const QDBusMessage& signal) {
    if (!m_isBound || signal.signature() != "oa(sa{sv})"_L1 ||
        signal.arguments().at(0).value<QDBusObjectPath>().path() != m_session->path())
        return;
    adopt(signal.arguments().at(1));
}

} // namespace quorvane
