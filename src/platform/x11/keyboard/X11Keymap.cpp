// SPDX-License-Identifier: MIT

#include "X11XInput.h"
#include "X11Xkb.h"

#include <x11_keyboard/X11Keymap.h>

#include <QByteArray>
#include <QLoggingCategory>
#include <QString>
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcLayout, "quorvane.layout", QtFatalMsg)

constexpr std::array heldModifierKeysyms{
    xkb_keysym_t{XKB_KEY_Shift_L},
    xkb_keysym_t{XKB_KEY_Shift_R},
    xkb_keysym_t{XKB_KEY_Control_L},
    xkb_keysym_t{XKB_KEY_Control_R},
    xkb_keysym_t{XKB_KEY_Meta_L},
    xkb_keysym_t{XKB_KEY_Meta_R},
    xkb_keysym_t{XKB_KEY_Alt_L},
    xkb_keysym_t{XKB_KEY_Alt_R},
    xkb_keysym_t{XKB_KEY_Super_L},
    xkb_keysym_t{XKB_KEY_Super_R},
    xkb_keysym_t{XKB_KEY_Hyper_L},
    xkb_keysym_t{XKB_KEY_Hyper_R},
    xkb_keysym_t{XKB_KEY_ISO_Level3_Shift},
    xkb_keysym_t{XKB_KEY_ISO_Level5_Shift},
    xkb_keysym_t{XKB_KEY_Mode_switch},
};

/// The keyboard that carries out what XTEST is asked to type; what it is a part of where the server
/// does not tell them apart.
std::uint16_t typingKeyboard(xcb_connection_t* connection, std::uint16_t master) {
    if (!x11xinput::start(connection))
        return master;
    return x11xinput::testKeyboard(connection, master).value_or(master);
}

} // namespace

std::unique_ptr<X11Keymap>
X11Keymap::open(MainQueue& mainQueue, Source source, std::function<void()> onLost) {
    auto connection = X11Connection::open(std::move(onLost));
    if (!connection)
        return nullptr;
    auto* xcb = connection->xcb();
    const auto event = x11xkb::start(xcb);
    if (!event) {
        qCWarning(lcLayout, "the X server has no XKB extension");
        return nullptr;
    }
    auto device = static_cast<std::uint16_t>(xkb_x11_get_core_keyboard_device_id(xcb));
    if (source == Source::PostedKeys)
        device = typingKeyboard(xcb, device);
    std::unique_ptr<X11Keymap> keymap(
        new X11Keymap(std::move(connection), {device, *event}, mainQueue));
    return keymap->m_state ? std::move(keymap) : nullptr;
}

X11Keymap::X11Keymap(
    std::shared_ptr<X11Connection> connection, Keyboard keyboard, MainQueue& mainQueue)
    : m_connection(std::move(connection)),
      m_keyboard(keyboard),
      m_context(xkb_context_new(XKB_CONTEXT_NO_FLAGS)),
      m_refresh(
          mainQueue,
          [this] {
              refresh();
              if (onChanged)
                  onChanged();
          }),
      m_subscription(m_connection->subscribe(
          [this](const xcb_generic_event_t& event) { handleEvent(event); })) {
    x11xkb::selectMapChanges(m_connection->xcb(), m_keyboard.device);
    x11xkb::selectGroupChanges(m_connection->xcb(), x11xkb::coreKeyboard);
    reload();
}

void X11Keymap::handleEvent(const xcb_generic_event_t& event) {
    if (event.response_type != m_keyboard.event)
        return;
    m_isMapStale = m_isMapStale || !x11xkb::isStateChange(event);
    m_refresh.schedule();
}

void X11Keymap::refresh() {
    // Reading and compiling a map takes some milliseconds, and a switch of the layout is none.
    if (std::exchange(m_isMapStale, false))
        reload();
    else
        followGroup();
}

void X11Keymap::reload() {
    Keymap keymap(xkb_x11_keymap_new_from_device(
        m_context.get(), m_connection->xcb(), m_keyboard.device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap) {
        qCWarning(lcLayout, "the keyboard map cannot be read");
        return;
    }
    m_keymap = std::move(keymap);
    followGroup();
}

void X11Keymap::followGroup() {
    m_state = stateWith(0);
    const auto shift = xkb_keymap_mod_get_index(m_keymap.get(), XKB_MOD_NAME_SHIFT);
    m_shiftedState = stateWith(shift != XKB_MOD_INVALID ? xkb_mod_mask_t{1} << shift : 0);
}

X11Keymap::State X11Keymap::stateWith(xkb_mod_mask_t modifiers) const {
    State state(xkb_state_new(m_keymap.get()));
    // Of all that is pressed, latched or locked, only the group: labels show the key alone.
    const auto group = x11xkb::group(m_connection->xcb(), x11xkb::coreKeyboard);
    xkb_state_update_mask(state.get(), modifiers, 0, 0, 0, 0, group);
    return state;
}

std::u16string X11Keymap::characters(xkb_keycode_t keycode, Held held) const {
    auto* state = held == Held::Shift ? m_shiftedState.get() : m_state.get();
    const int length = xkb_state_key_get_utf8(state, keycode, nullptr, 0);
    if (length <= 0)
        return {};
    QByteArray text(length + 1, '\0');
    xkb_state_key_get_utf8(state, keycode, text.data(), static_cast<std::size_t>(text.size()));
    text.chop(1);
    return QString::fromUtf8(text).toStdU16String();
}

std::optional<xcb_keycode_t> X11Keymap::keycodeOf(xkb_keysym_t keysym) const {
    const auto first = xkb_keymap_min_keycode(m_keymap.get());
    const auto last = xkb_keymap_max_keycode(m_keymap.get());
    const auto inGroup = [&](auto groupOf) -> std::optional<xcb_keycode_t> {
        for (auto keycode = first; keycode <= last; ++keycode) {
            const auto key = static_cast<xcb_keycode_t>(keycode);
            if (plainKeysym(key, groupOf(key)) == keysym)
                return key;
        }
        return std::nullopt;
    };
    auto found =
        inGroup([this](xcb_keycode_t key) { return xkb_state_key_get_layout(m_state.get(), key); });
    for (xkb_layout_index_t group = 0; !found && group < xkb_keymap_num_layouts(m_keymap.get());
         ++group)
        found = inGroup([group](xcb_keycode_t) { return group; });
    return found;
}

bool X11Keymap::isHeldModifier(xcb_keycode_t keycode) const {
    const auto keysym = plainKeysym(keycode, xkb_state_key_get_layout(m_state.get(), keycode));
    return std::ranges::find(heldModifierKeysyms, keysym) != heldModifierKeysyms.end();
}

xkb_keysym_t X11Keymap::plainKeysym(xcb_keycode_t keycode, xkb_layout_index_t group) const {
    const xkb_keysym_t* keysyms = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(m_keymap.get(), keycode, group, 0, &keysyms);
    return count == 1 ? *keysyms : xkb_keysym_t{XKB_KEY_NoSymbol};
}

} // namespace quorvane
