// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyboardLayout.h>
#include <x11_keyboard/X11Keymap.h>

#include <memory>

namespace quorvane {

class X11KeyboardLayout final : public KeyboardLayout {
public:
    /// Null for a server whose keymap cannot be read.
    explicit X11KeyboardLayout(std::shared_ptr<X11Keymap> keymap);

    [[nodiscard]] std::optional<std::u16string> characters(std::uint16_t keyCode) const override;
    [[nodiscard]] std::optional<std::u16string>
    shiftedCharacters(std::uint16_t keyCode) const override;
    void onChanged(std::function<void()> handler) override;

private:
    [[nodiscard]] std::optional<std::u16string>
    typed(std::uint16_t keyCode, X11Keymap::Held held) const;

    std::shared_ptr<X11Keymap> m_keymap;
};

} // namespace quorvane
