// SPDX-License-Identifier: MIT
#include "PortalLog.h"
#include "PortalNames.h"
#include "PortalSession.h"

#include <platform/KeyCodes.h>
#include <platform_portal/PortalKeyboard.h>

#include <QPointer>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;
using Outcome = PortalResponse::Outcome;

namespace {

constexpr uint keyboardDevice = 1;
constexpr uint untilRevoked = 2; ///< how long a consent is kept
constexpr uint versionThatKeepsConsents = 2;
const auto noParentWindow = QString();

/// A number of another type counts as none.
uint number(const QVariantMap& map, const QString& key) {
    const auto value = map.value(key);
    return value.typeId() == QMetaType::UInt ? value.toUInt() : 0;
}

QString text(const QVariantMap& map, const QString& key) {
    const auto value = map.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

} // namespace

PortalKeyboard::PortalKeyboard(
    std::shared_ptr<PortalDesktop> portal, MainQueue& queue, RestoreToken token)
    : m_portal(std::move(portal)),
      m_queue(queue),
      m_token(token) {
    connect(m_portal.get(), &PortalDesktop::lost, this, &PortalKeyboard::losePortal);
    connect(m_portal.get(), &PortalDesktop::appeared, this, &PortalKeyboard::look);
    look();
}

PortalKeyboard::~PortalKeyboard() {
    if (!m_clipboard)
        return;
    m_clipboard->onRefused([] {});
    m_clipboard->end();
}

void PortalKeyboard::share(std::shared_ptr<PortalClipboard> clipboard) {
    m_clipboard = std::move(clipboard);
    m_clipboard->onRefused([this] { end(TypingRight::Stopped); });
}

void PortalKeyboard::open() {
    if (m_state == TypingRight::Asking || m_state == TypingRight::Granted)
        return;
    setState(TypingRight::Asking);
    m_portal->meet(
        portalname::remoteDesktop, this, [this](const std::optional<QVariantMap>& properties) {
            adoptOffer(properties);
            if (m_state == TypingRight::Asking)
                createSession();
        });
}

void PortalKeyboard::move(std::uint16_t key, Move move, Sent sent) {
    if (m_state != TypingRight::Granted)
        return sent(false);
    auto message = m_session->question(u"NotifyKeyboardKeycode");
    message << QVariantMap() << static_cast<int>(key) << (move == Move::Down ? 1U : 0U);
    m_portal->ask(
        message,
        this,
        [this, session = QPointer(m_session.get()), sent = std::move(sent)](
            const QDBusMessage& answer) {
            const bool isTaken = answer.type() == QDBusMessage::ReplyMessage;
            if (!isTaken)
                qCInfo(lcPortal, "key: %ls", qUtf16Printable(answer.errorMessage()));
            if (!isTaken && session && m_state == TypingRight::Granted)
                end(TypingRight::Stopped);
            sent(isTaken);
        },
        keyPatience);
}

/// Without a question to the user.
void PortalKeyboard::look() {
    m_portal->meet(
        portalname::remoteDesktop, this, [this](const std::optional<QVariantMap>& properties) {
            adoptOffer(properties);
        });
}

void PortalKeyboard::adoptOffer(const std::optional<QVariantMap>& properties) {
    const auto offer = properties.value_or(QVariantMap());
    m_isOffered = (number(offer, u"AvailableDeviceTypes"_s) & keyboardDevice) != 0;
    m_keepsConsent = number(offer, u"version"_s) >= versionThatKeepsConsents;
    if (!m_isOffered)
        end(TypingRight::Unavailable);
    else if (m_state == TypingRight::Unavailable)
        setState(TypingRight::NotAsked);
}

void PortalKeyboard::createSession() {
    m_session = std::make_unique<PortalSession>(
        *m_portal,
        m_queue,
        portalname::remoteDesktop,
        PortalSession::Callbacks{
            [this](bool isCreated) { selectDevices(isCreated); },
            [this] {
                end(m_state == TypingRight::Asking ? TypingRight::Refused : TypingRight::Stopped);
            }});
}

void PortalKeyboard::selectDevices(bool isCreated) {
    if (!isCreated)
        return end(TypingRight::Unavailable);
    QVariantMap options{{u"types"_s, keyboardDevice}};
    if (m_keepsConsent) {
        options.insert(u"persist_mode"_s, untilRevoked);
        if (const auto token = m_token.current(); !token.isEmpty())
            options.insert(u"restore_token"_s, token);
    }
    m_session->put(
        u"SelectDevices",
        {},
        options,
        PortalSession::patience,
        [this](const PortalResponse& response) { requestClipboard(response); });
}

/// Whatever the portal says to that, it is asked for the keyboard.
void PortalKeyboard::requestClipboard(const PortalResponse& selected) {
    if (selected.outcome != Outcome::Success)
        return end(TypingRight::Unavailable);
    if (!m_clipboard)
        return start();
    m_clipboard->request(*m_session, [this] { start(); });
}

void PortalKeyboard::start() {
    m_session->put(
        u"Start", {noParentWindow}, {}, std::nullopt, [this](const PortalResponse& response) {
            adoptConsent(response);
        });
}

void PortalKeyboard::adoptConsent(const PortalResponse& started) {
    if (started.outcome == Outcome::Failed)
        return end(TypingRight::Stopped);
    const auto agreed = started.outcome == Outcome::Success ? started.results : QVariantMap();
    // Whatever was answered, the earlier token is used up.
    m_token.replace(text(agreed, u"restore_token"_s));
    // The user may have agreed, but not to the keyboard.
    if ((number(agreed, u"devices"_s) & keyboardDevice) == 0)
        return end(TypingRight::Refused);
    if (m_clipboard && started.results.value(u"clipboard_enabled"_s).toBool())
        m_clipboard->begin(*m_session);
    setState(TypingRight::Granted);
    wakeUp();
}

/// Compositors make the keyboard with its first key, which may get lost.
void PortalKeyboard::wakeUp() {
    const auto shift = *evdevFromKeyCode(keycode::leftShift);
    move(shift, Move::Down, [](bool) {});
    move(shift, Move::Up, [](bool) {});
}

void PortalKeyboard::losePortal() {
    if (m_state == TypingRight::Asking || m_state == TypingRight::Granted)
        end(TypingRight::Stopped);
}

void PortalKeyboard::end(TypingRight state) {
    if (m_clipboard)
        m_clipboard->end();
    m_session.reset();
    setState(state);
}

void PortalKeyboard::setState(TypingRight state) {
    if (std::exchange(m_state, state) != state)
        m_changed();
}

} // namespace quorvane
