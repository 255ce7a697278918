// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyPoster.h>
#include <x11_keyboard/X11GrabbedKeys.h>
#include <x11_keyboard/X11Keymap.h>
#include <x11_server/X11Connection.h>
#include <x11_windows/X11Windows.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

namespace quorvane {

/// Types through the XTEST extension.
class X11KeyPoster final : public KeyPoster {
public:
    using Keymap = std::shared_ptr<const X11Keymap>;

    /// A keymap that is null, because it cannot be read, has no keys.
    struct Keymaps {
        Keymap usersKeys;                       ///< tells which keys are held modifiers
        std::function<Keymap()> openPostedKeys; ///< called once, when they are needed first
    };

    /// The grabbed keys are those of the same connection.
    X11KeyPoster(
        std::shared_ptr<X11Connection> connection,
        Keymaps keymaps,
        std::shared_ptr<X11GrabbedKeys> grabbedKeys);

    /// Reads the map of the keyboard that types.
    void prepare() override;

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override;
    void paste(const PasteTarget& target, PostHandler done) override;

private:
    /// Pressed in this order, released in the opposite one.
    using Keys = std::vector<xcb_keycode_t>;

    [[nodiscard]] const X11Keymap* postedKeys() const;
    [[nodiscard]] PostOutcome post(PasteKeys wanted);
    [[nodiscard]] std::optional<Keys> keysFor(PasteKeys keys) const;
    [[nodiscard]] std::optional<Keys>
    keysYielding(std::initializer_list<xkb_keysym_t> keysyms) const;
    [[nodiscard]] Keys keysInTheWay() const;
    [[nodiscard]] std::uint8_t modifiersInTheWay() const;
    void type(const Keys& keys);
    void tap(const Keys& keys);
    void fake(std::uint8_t event, xcb_keycode_t keycode);
    void logTarget(xcb_window_t target) const;

    std::shared_ptr<X11Connection> m_connection;
    Keymaps m_keymaps;
    mutable std::optional<Keymap> m_postedKeys; ///< none before they are needed
    std::shared_ptr<X11GrabbedKeys> m_grabbedKeys;
    X11Windows m_windows;
    bool m_hasXkb; ///< without it nothing can be locked but the lock keys
};

} // namespace quorvane
