// SPDX-License-Identifier: MIT
#pragma once

#include <loop/CoalescedRefresh.h>
#include <x11_server/X11Connection.h>

#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quorvane {

/// What the keys of a keyboard type. It follows the layout in use.
///
/// On a connection of its own: a client that has used the XKB extension no longer receives
/// MappingNotify, by which the shortcut's grab learns of a new keyboard map.
class X11Keymap {
public:
    /// Whose keys. The maps differ where the user has plugged in a keyboard after choosing the
    /// layout: the server takes on the map of the keyboard that was used last.
    enum class Source {
        UsersKeys, ///< of the keyboard used last
        PostedKeys ///< of the one that XTEST types on
    };

    /// Null if the server does not tell. The queue must outlive the keymap.
    [[nodiscard]] static std::unique_ptr<X11Keymap> open(
        MainQueue& mainQueue, Source source = Source::UsersKeys, std::function<void()> onLost = {});

    /// The modifiers with which a key is asked for.
    enum class Held { Nothing, Shift };

    /// What the key types; empty for dead keys and keys without a character.
    [[nodiscard]] std::u16string characters(xkb_keycode_t keycode, Held held = Held::Nothing) const;

    /// A key that yields the keysym on its own: in the group in use if there is one, else in any.
    [[nodiscard]] std::optional<xcb_keycode_t> keycodeOf(xkb_keysym_t keysym) const;

    /// Whether the key acts while it is held, as Shift does; the lock keys do not.
    [[nodiscard]] bool isHeldModifier(xcb_keycode_t keycode) const;

    /// Called after a switch or a change of the layout.
    std::function<void()> onChanged;

private:
    struct KeymapUnref {
        void operator()(xkb_context* context) const { xkb_context_unref(context); }

        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }

        void operator()(xkb_state* state) const { xkb_state_unref(state); }
    };

    using Context = std::unique_ptr<xkb_context, KeymapUnref>;
    using Keymap = std::unique_ptr<xkb_keymap, KeymapUnref>;
    using State = std::unique_ptr<xkb_state, KeymapUnref>;

    struct Keyboard {
        std::uint16_t device = 0;
        std::uint8_t event = 0; ///< the code of its announcements
    };

    X11Keymap(std::shared_ptr<X11Connection> connection, Keyboard keyboard, MainQueue& mainQueue);

    void handleEvent(const xcb_generic_event_t& event);
    void refresh();
    void reload();
    void followGroup();
    [[nodiscard]] State stateWith(xkb_mod_mask_t modifiers) const;
    [[nodiscard]] xkb_keysym_t plainKeysym(xcb_keycode_t keycode, xkb_layout_index_t group) const;

    std::shared_ptr<X11Connection> m_connection;
    Keyboard m_keyboard;
    Context m_context;
    Keymap m_keymap;
    State m_state;
    State m_shiftedState;
    bool m_isMapStale = false;
    CoalescedRefresh m_refresh;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
