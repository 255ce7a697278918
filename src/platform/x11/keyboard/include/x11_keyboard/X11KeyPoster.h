// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyPoster.h>
#include <x11_keyboard/X11Keymap.h>
#include <x11_keyboard/X11PostedKeys.h>
#include <x11_server/X11Connection.h>
#include <x11_windows/X11Windows.h>

#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

namespace quorvane {

/// Types through the XTEST extension.
class X11KeyPoster final : public KeyPoster {
public:
    /// A keymap that is null, because it cannot be read, has no keys.
    X11KeyPoster(
        std::shared_ptr<X11Connection> connection,
        std::shared_ptr<const X11Keymap> keymap,
        std::shared_ptr<X11PostedKeys> postedKeys);

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override;
    [[nodiscard]] PostOutcome paste(const PasteTarget& target) override;

private:
    /// Pressed in this order, released in the opposite one.
    using Keys = std::vector<xcb_keycode_t>;

    [[nodiscard]] std::optional<Keys> keysFor(PasteKeys keys) const;
    [[nodiscard]] std::optional<Keys>
    keysYielding(std::initializer_list<xkb_keysym_t> keysyms) const;
    [[nodiscard]] Keys keysInTheWay() const;
    void type(const Keys& keys);
    [[nodiscard]] xcb_void_cookie_t fake(std::uint8_t event, xcb_keycode_t keycode);
    void logTarget(xcb_window_t target) const;

    std::shared_ptr<X11Connection> m_connection;
    std::shared_ptr<const X11Keymap> m_keymap;
    std::shared_ptr<X11PostedKeys> m_postedKeys;
    X11Windows m_windows;
};

} // namespace quorvane
