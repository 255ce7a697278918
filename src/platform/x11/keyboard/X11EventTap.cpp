// SPDX-License-Identifier: MIT
#include "X11EventTap.h"

#include <platform/KeyCodes.h>
#include <x11_server/QtX11.h>
#include <x11_server/X11Events.h>

#include <QCoreApplication>
#include <QLoggingCategory>

#include <limits>
#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcTap, "quorvane.tap", QtFatalMsg)

/// None for a key that X cannot name, which has only one byte for it.
std::optional<xcb_keycode_t> x11KeycodeOf(std::uint32_t keyCode) {
    const auto scanCode = scanCodeFromKeyCode(keyCode);
    if (!scanCode || *scanCode > std::numeric_limits<xcb_keycode_t>::max())
        return std::nullopt;
    return static_cast<xcb_keycode_t>(*scanCode);
}

} // namespace

X11EventTap::X11EventTap(
    std::shared_ptr<X11Connection> connection,
    MainQueue& mainQueue,
    std::shared_ptr<const X11PostedKeys> postedKeys,
    KeyPressHandler handler)
    : m_connection(std::move(connection)),
      m_postedKeys(std::move(postedKeys)),
      m_handler(std::move(handler)),
      m_modifiers(X11ModifierMap::read(*m_connection)),
      m_mapRefresh(mainQueue, [this] { keyboardMapChanged(); }),
      m_subscription(m_connection->subscribe(
          [this](const xcb_generic_event_t& event) { handleEvent(event); })) {
    // An open menu or popup of ours holds the whole keyboard, and no passive grab fires then. The
    // press reaches Qt instead, and has to be caught before its shortcuts and widgets.
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11EventTap::~X11EventTap() {
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

void X11EventTap::watch(std::optional<KeyChord> chord) {
    m_watched = chord;
    updateGrab();
}

void X11EventTap::enable() {
    m_enabled = true;
    updateGrab();
}

void X11EventTap::disable() {
    m_enabled = false;
    updateGrab();
}

bool X11EventTap::nativeEventFilter(const QByteArray& kind, void* message, qintptr*) {
    const auto* event = qtx11::eventIn(kind, message);
    if (!m_grab || event == nullptr)
        return false;
    const auto* press = eventAs<xcb_key_press_event_t>(*event);
    // A press that the grab has replayed has been decided about already.
    if (press == nullptr || !isWatched(*press) || press->time == m_lastDecision)
        return false;
    return decide(*press) == TapVerdict::Swallow;
}

void X11EventTap::handleEvent(const xcb_generic_event_t& event) {
    if (eventAs<xcb_mapping_notify_event_t>(event) != nullptr)
        return m_mapRefresh.schedule();
    const auto* press = eventAs<xcb_key_press_event_t>(event);
    if (press == nullptr || !m_grab || !m_grab->canHaveSent(event))
        return;
    if (m_postedKeys->caused(event))
        return m_grab->replay(press->time);
    answerGrab(*press);
}

void X11EventTap::answerGrab(const xcb_key_press_event_t& press) {
    const auto verdict = decide(press);
    // No grab is left if the handler disabled us; it has replayed the press then.
    if (!m_grab)
        return;
    if (verdict == TapVerdict::Swallow)
        m_grab->swallow();
    else
        m_grab->replay(press.time);
}

TapVerdict X11EventTap::decide(const xcb_key_press_event_t& press) {
    const auto keyCode = keyCodeFromScanCode(press.detail);
    if (!keyCode)
        return TapVerdict::Pass;
    m_lastDecision = press.time;
    m_connection->noteUserTime(press.time);
    return m_handler({*keyCode, m_modifiers.flagsOf(press.state)});
}

bool X11EventTap::isWatched(const xcb_key_press_event_t& press) const {
    return press.detail == m_grab->combination().keycode &&
           (m_modifiers.flagsOf(press.state) & modifier::counted) ==
               (m_watched->flags & modifier::counted);
}

std::optional<X11KeyGrab::Combination> X11EventTap::wantedCombination() const {
    if (!m_enabled || !m_watched)
        return std::nullopt;
    const auto keycode = x11KeycodeOf(m_watched->keyCode);
    const auto mask = m_modifiers.maskOf(m_watched->flags);
    if (!keycode || !mask) {
        qCInfo(lcTap, "this keyboard has no such shortcut");
        return std::nullopt;
    }
    return X11KeyGrab::Combination{*keycode, m_modifiers.withLocks(*mask)};
}

void X11EventTap::updateGrab() {
    auto wanted = wantedCombination();
    // What we hold already stays ours without a gap, in which a press would be lost to us.
    if (m_grab && wanted == m_grab->combination())
        return;
    m_grab.reset();
    if (!wanted)
        return;
    m_grab = X11KeyGrab::take(m_connection, std::move(*wanted));
    if (!m_grab)
        qCInfo(lcTap, "another program holds the shortcut");
}

void X11EventTap::keyboardMapChanged() {
    m_modifiers = X11ModifierMap::read(*m_connection);
    updateGrab();
}

} // namespace quorvane
