// SPDX-License-Identifier: MIT

#include "X11ModifierMap.h"
#include "X11Xkb.h"

#include <platform/PasteTarget.h>
#include <x11_keyboard/X11AccessibilityRight.h>
#include <x11_keyboard/X11KeyPoster.h>
#include <x11_server/X11KeyState.h>
#include <x11_server/X11ServerGrab.h>

#include <QLoggingCategory>
#include <xcb/xtest.h>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcKeys, "quorvane.keys", QtFatalMsg)

void appendOnce(std::vector<xcb_keycode_t>& keys, xcb_keycode_t key) {
    if (std::ranges::find(keys, key) == keys.end())
        keys.push_back(key);
}

} // namespace

X11KeyPoster::X11KeyPoster(
    std::shared_ptr<X11Connection> connection,
    Keymaps keymaps,
    std::shared_ptr<X11GrabbedKeys> grabbedKeys)
    : m_connection(std::move(connection)),
      m_keymaps(std::move(keymaps)),
      m_grabbedKeys(std::move(grabbedKeys)),
      m_windows(m_connection),
      m_hasXkb(x11xkb::start(m_connection->xcb()).has_value()) {
}

void X11KeyPoster::prepare() {
    static_cast<void>(postedKeys());
}

const X11Keymap* X11KeyPoster::postedKeys() const {
    if (!m_postedKeys)
        m_postedKeys = m_keymaps.openPostedKeys();
    return m_postedKeys->get();
}

std::optional<PasteTarget> X11KeyPoster::pasteTarget() const {
    if (!hasTestExtension(*m_connection))
        return std::nullopt;
    const auto window = m_windows.active();
    logTarget(window);
    const auto wanted = pasteTargetFor(m_windows.classOf(window));
    if (keysFor(wanted.keys))
        return wanted;
    const auto older = withoutLatinV(wanted);
    return keysFor(older.keys) ? std::optional(older) : std::nullopt;
}

void X11KeyPoster::paste(const PasteTarget& target, PostHandler done) {
    done(post(target.keys));
}

PostOutcome X11KeyPoster::post(PasteKeys wanted) {
    if (!hasTestExtension(*m_connection))
        return PostOutcome::Unavailable;
    const auto keys = keysFor(wanted);
    if (!keys)
        return PostOutcome::NoSuchKey;
    type(*keys);
    return PostOutcome::Posted;
}

std::optional<X11KeyPoster::Keys> X11KeyPoster::keysFor(PasteKeys keys) const {
    if (!m_keymaps.usersKeys || postedKeys() == nullptr)
        return std::nullopt;
    switch (keys) {
    case PasteKeys::ControlV:
        return keysYielding({XKB_KEY_Control_L, XKB_KEY_v});
    case PasteKeys::ControlShiftV:
        return keysYielding({XKB_KEY_Control_L, XKB_KEY_Shift_L, XKB_KEY_v});
    case PasteKeys::ShiftInsert:
        return keysYielding({XKB_KEY_Shift_L, XKB_KEY_Insert});
    }
    return std::nullopt;
}

std::optional<X11KeyPoster::Keys>
X11KeyPoster::keysYielding(std::initializer_list<xkb_keysym_t> keysyms) const {
    Keys keys;
    for (const auto keysym : keysyms) {
        const auto key = postedKeys()->keycodeOf(keysym);
        if (!key)
            return std::nullopt;
        keys.push_back(*key);
    }
    return keys;
}

X11KeyPoster::Keys X11KeyPoster::keysInTheWay() const {
    Keys keys;
    for (const auto key : x11keystate::keysDown(m_connection->xcb())) {
        if (m_keymaps.usersKeys->isHeldModifier(key))
            keys.push_back(key);
    }
    // The modifiers of the paste keys, too: the server may not know yet that the user holds them.
    for (const auto keysym : {XKB_KEY_Control_L, XKB_KEY_Shift_L}) {
        if (const auto key = postedKeys()->keycodeOf(static_cast<xkb_keysym_t>(keysym)))
            appendOnce(keys, *key);
    }
    return keys;
}

/// Of the modifiers that act without a key being down, those that would change the paste command:
/// all but the lock keys', which no command minds.
std::uint8_t X11KeyPoster::modifiersInTheWay() const {
    return static_cast<std::uint8_t>(~X11ModifierMap::read(*m_connection).lockMask());
}

void X11KeyPoster::type(const Keys& keys) {
    {
        // While we ask what is in the way and then type, no other client's request comes between.
        const X11ServerGrab alone(*m_connection);
        const X11GrabbedKeys::Pause pause(*m_grabbedKeys);
        auto* xcb = m_connection->xcb();
        const auto affected = m_hasXkb ? modifiersInTheWay() : std::uint8_t{0};
        const auto stuck = m_hasXkb ? x11xkb::stuckModifiers(xcb) : x11xkb::StuckModifiers{};
        const bool isInTheWay = ((stuck.locked | stuck.latched) & affected) != 0;
        if (isInTheWay)
            x11xkb::setStuckModifiers(xcb, affected, {});
        tap(keys);
        if (isInTheWay)
            x11xkb::setStuckModifiers(xcb, affected, stuck);
    }
    m_connection->waitForServer();
}

void X11KeyPoster::tap(const Keys& keys) {
    // The held modifiers are not pressed again afterwards: the server would keep our press when the
    // user lets go, and the modifier would be stuck.
    for (const auto key : keysInTheWay())
        fake(XCB_KEY_RELEASE, key);
    for (const auto key : keys)
        fake(XCB_KEY_PRESS, key);
    std::for_each(
        keys.rbegin(), keys.rend(), [this](xcb_keycode_t key) { fake(XCB_KEY_RELEASE, key); });
}

void X11KeyPoster::fake(std::uint8_t event, xcb_keycode_t keycode) {
    constexpr std::uint8_t defaultKeyboard = 0;
    xcb_test_fake_input(
        m_connection->xcb(),
        event,
        keycode,
        XCB_CURRENT_TIME,
        XCB_WINDOW_NONE,
        0,
        0,
        defaultKeyboard);
}

void X11KeyPoster::logTarget(xcb_window_t target) const {
    if (!lcKeys().isDebugEnabled())
        return;
    qCDebug(
        lcKeys,
        "keys go to 0x%x (%ls), the input focus is 0x%x",
        target,
        qUtf16Printable(m_windows.classOf(target).join(u'/')),
        m_windows.inputFocus());
}

} // namespace quorvane
