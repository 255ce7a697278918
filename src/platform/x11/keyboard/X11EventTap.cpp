// SPDX-License-Identifier: MIT
#include "X11EventTap.h"

#include "X11Xkb.h"

#include <platform/KeyCodes.h>
#include <x11_server/QtX11.h>
#include <x11_server/X11Events.h>
#include <x11_server/X11KeyState.h>

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
    std::shared_ptr<X11GrabbedKeys> grabbedKeys,
    MainQueue& mainQueue,
    TapHandlers handlers)
    : m_connection(std::move(connection)),
      m_grabbedKeys(std::move(grabbedKeys)),
      m_handlers(std::move(handlers)),
      m_windows(m_connection),
      m_mapEvent(x11xkb::start(m_connection->xcb())),
      m_modifiers(X11ModifierMap::read(*m_connection)),
      m_releaseWatch(m_connection, [this] { m_handlers.released(); }),
      m_mapRefresh(mainQueue, [this] { keyboardMapChanged(); }),
      m_subscription(m_connection->subscribe(
          [this](const xcb_generic_event_t& event) { handleEvent(event); })) {
    if (m_mapEvent) {
        x11xkb::selectMapChanges(m_connection->xcb(), x11xkb::coreKeyboard);
        x11xkb::omitReleasesOfRepeats(m_connection->xcb());
    }
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

bool X11EventTap::isKeyDown() {
    if (!m_grab || !m_releaseWatch.isAvailable())
        return false;
    const auto key = m_grab->combination().keycode;
    // Listening first: a release after the answer is told.
    m_releaseWatch.watch(key);
    const bool isDown = x11keystate::isDown(m_connection->xcb(), key);
    if (!isDown)
        m_releaseWatch.stop();
    return isDown;
}

bool X11EventTap::nativeEventFilter(const QByteArray& kind, void* message, qintptr*) {
    const auto* event = qtx11::eventIn(kind, message);
    if (!m_grab || event == nullptr)
        return false;
    const auto* press = eventAs<xcb_key_press_event_t>(*event);
    if (press == nullptr || !isWatched(*press))
        return false;
    m_releaseWatch.watch(press->detail);
    const auto verdict = decide(*press);
    tellIfUp(press->detail);
    return verdict == TapVerdict::Swallow;
}

/// Nothing kept the key's release waiting while the press was on its way through Qt: it may have
/// gone up before the watch began.
void X11EventTap::tellIfUp(xcb_keycode_t key) {
    if (!m_releaseWatch.isAvailable() || x11keystate::isDown(m_connection->xcb(), key))
        return;
    m_releaseWatch.stop();
    m_handlers.released();
}

void X11EventTap::handleEvent(const xcb_generic_event_t& event) {
    if (event.response_type == m_mapEvent || eventAs<xcb_mapping_notify_event_t>(event) != nullptr)
        m_mapRefresh.schedule();
    else if (const auto* press = eventAs<xcb_key_press_event_t>(event))
        handlePress(*press);
    else if (event.response_type == XCB_KEY_RELEASE)
        handleRelease(reinterpret_cast<const xcb_key_release_event_t&>(event));
}

void X11EventTap::handlePress(const xcb_key_press_event_t& press) {
    const bool watched = m_grab && isWatched(press);
    // Before the keyboard is free: a release then comes to us by the one way or the other.
    if (watched)
        m_releaseWatch.watch(press.detail);
    // At once: until then all that is typed comes to us. The key's release goes to the window with
    // the focus, and each repeat comes to us as a press of its own.
    m_grabbedKeys->freeKeyboard(press.time);
    if (watched)
        (void) decide(press);
}

/// The key went up before its press was answered, and the server has sent that to us: the window
/// with the focus gets it from us instead.
void X11EventTap::handleRelease(const xcb_key_release_event_t& release) {
    // Without XKB, releases that nobody caused precede the repeats.
    if (!m_mapEvent || !m_grab || release.detail != m_grab->combination().keycode)
        return;
    if (const auto focus = m_windows.inputFocus(); focus != XCB_WINDOW_NONE) {
        auto handedOn = release;
        handedOn.event = focus;
        xcb_send_event(
            m_connection->xcb(),
            1,
            focus,
            XCB_EVENT_MASK_KEY_RELEASE,
            reinterpret_cast<const char*>(&handedOn));
        m_connection->flush();
    }
    if (!m_releaseWatch.isAvailable())
        return;
    m_releaseWatch.stop();
    m_handlers.released();
}

TapVerdict X11EventTap::decide(const xcb_key_press_event_t& press) {
    const auto keyCode = keyCodeFromScanCode(press.detail);
    if (!keyCode)
        return TapVerdict::Pass;
    m_connection->noteUserTime(press.time);
    return m_handlers.pressed({*keyCode, m_modifiers.flagsOf(press.state)});
}

bool X11EventTap::isWatched(const xcb_key_press_event_t& press) const {
    return press.detail == m_grab->combination().keycode &&
           (m_modifiers.flagsOf(press.state) & modifier::counted) ==
               (m_watched->flags & modifier::counted);
}

/// None if this keyboard cannot type the shortcut.
std::optional<X11GrabbedKeys::Combination> X11EventTap::wantedCombination() const {
    const auto keycode = x11KeycodeOf(m_watched->keyCode);
    const auto mask = m_modifiers.maskOf(m_watched->flags);
    if (!keycode || !mask)
        return std::nullopt;
    return X11GrabbedKeys::Combination{*keycode, m_modifiers.withLocks(*mask)};
}

void X11EventTap::updateGrab() {
    const auto delivery = updatedDelivery();
    if (std::exchange(m_delivery, delivery) == delivery)
        return;
    if (delivery == TapDelivery::HeldElsewhere)
        qCInfo(lcTap, "another program holds the shortcut");
    else if (delivery == TapDelivery::NoSuchKey)
        qCInfo(lcTap, "this keyboard has no such shortcut");
    m_handlers.deliveryChanged();
}

TapDelivery X11EventTap::updatedDelivery() {
    if (!m_enabled || !m_watched) {
        m_grab.reset();
        return TapDelivery::Off;
    }
    auto wanted = wantedCombination();
    // What we hold already stays ours without a gap, in which a press would be lost to us.
    if (m_grab && wanted == m_grab->combination())
        return TapDelivery::Delivering;
    m_grab.reset();
    if (!wanted)
        return TapDelivery::NoSuchKey;
    m_grab = X11KeyGrab::take(m_grabbedKeys, std::move(*wanted));
    return m_grab ? TapDelivery::Delivering : TapDelivery::HeldElsewhere;
}

void X11EventTap::keyboardMapChanged() {
    m_modifiers = X11ModifierMap::read(*m_connection);
    updateGrab();
}

} // namespace quorvane
