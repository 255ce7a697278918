// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>
#include <x11_keyboard/X11KeyboardLayout.h>

#include <utility>

namespace quorvane {

namespace {

constexpr std::size_t maxUnits = 4;

} // namespace

X11KeyboardLayout::X11KeyboardLayout(std::shared_ptr<X11Keymap> keymap)
    : m_keymap(std::move(keymap)) {
}

std::optional<std::u16string> X11KeyboardLayout::characters(std::uint16_t keyCode) const {
    return typed(keyCode, X11Keymap::Held::Nothing);
}

std::optional<std::u16string> X11KeyboardLayout::shiftedCharacters(std::uint16_t keyCode) const {
    return typed(keyCode, X11Keymap::Held::Shift);
}

std::optional<std::u16string>
X11KeyboardLayout::typed(std::uint16_t keyCode, X11Keymap::Held held) const {
    if (!m_keymap)
        return std::nullopt;
    const auto scanCode = scanCodeFromKeyCode(keyCode);
    return scanCode ? m_keymap->characters(*scanCode, held).substr(0, maxUnits) : std::u16string();
}

void X11KeyboardLayout::onChanged(std::function<void()> handler) {
    if (m_keymap)
        m_keymap->onChanged = std::move(handler);
}

} // namespace quorvane
