// SPDX-License-Identifier: MIT

#include <platform/PasteTarget.h>
#include <x11_keyboard/X11AccessibilityRight.h>
#include <x11_keyboard/X11KeyPoster.h>
#include <x11_server/X11ServerGrab.h>

#include <QLoggingCategory>
#include <xcb/xtest.h>

#include <algorithm>
#include <climits>
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
    std::shared_ptr<const X11Keymap> keymap,
    std::shared_ptr<X11PostedKeys> postedKeys)
    : m_connection(std::move(connection)),
      m_keymap(std::move(keymap)),
      m_postedKeys(std::move(postedKeys)),
      m_windows(m_connection) {
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

PostOutcome X11KeyPoster::paste(const PasteTarget& target) {
    if (!hasTestExtension(*m_connection))
        return PostOutcome::Unavailable;
    const auto keys = keysFor(target.keys);
    if (!keys)
        return PostOutcome::NoSuchKey;
    type(*keys);
    return PostOutcome::Posted;
}

std::optional<X11KeyPoster::Keys> X11KeyPoster::keysFor(PasteKeys keys) const {
    if (!m_keymap)
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
        const auto key = m_keymap->keycodeOf(keysym);
        if (!key)
            return std::nullopt;
        keys.push_back(*key);
    }
    return keys;
}

X11KeyPoster::Keys X11KeyPoster::keysInTheWay() const {
    Keys keys;
    auto* xcb = m_connection->xcb();
    const XcbReply<xcb_query_keymap_reply_t> down(
        xcb_query_keymap_reply(xcb, xcb_query_keymap(xcb), nullptr));
    for (std::size_t key = 0; down && key < std::size(down->keys) * CHAR_BIT; ++key) {
        const auto keycode = static_cast<xcb_keycode_t>(key);
        const bool isDown = (down->keys[key / CHAR_BIT] >> (key % CHAR_BIT) & 1) != 0;
        if (isDown && m_keymap->isHeldModifier(keycode))
            keys.push_back(keycode);
    }
    // The modifiers of the paste keys, too: the server may not know yet that the user holds them.
    for (const auto keysym : {XKB_KEY_Control_L, XKB_KEY_Shift_L}) {
        if (const auto key = m_keymap->keycodeOf(static_cast<xkb_keysym_t>(keysym)))
            appendOnce(keys, *key);
    }
    return keys;
}

void X11KeyPoster::type(const Keys& keys) {
    {
        // While we ask which keys are held and then type, no other client's request comes between.
        const X11ServerGrab alone(*m_connection);
        std::vector<xcb_void_cookie_t> requests;
        // The held modifiers are not pressed again afterwards: the server would keep our press when
        // the user lets go, and the modifier would be stuck.
        for (const auto key : keysInTheWay())
            requests.push_back(fake(XCB_KEY_RELEASE, key));
        for (const auto key : keys)
            requests.push_back(fake(XCB_KEY_PRESS, key));
        for (auto key = keys.rbegin(); key != keys.rend(); ++key)
            requests.push_back(fake(XCB_KEY_RELEASE, *key));
        m_postedKeys->note(requests.front(), requests.back());
    }
    m_connection->waitForServer();
}

xcb_void_cookie_t X11KeyPoster::fake(std::uint8_t event, xcb_keycode_t keycode) {
    constexpr std::uint8_t defaultKeyboard = 0;
    return xcb_test_fake_input(
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
