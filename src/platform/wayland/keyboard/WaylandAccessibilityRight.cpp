// SPDX-License-Identifier: MIT
#include <utility>
#include <wayland_keyboard/WaylandAccessibilityRight.h>

namespace quorvane {

WaylandAccessibilityRight::WaylandAccessibilityRight(
    std::shared_ptr<WaylandVirtualKeyboards> keyboards)
    : m_keyboards(std::move(keyboards)),
      m_told(typing()) {
}

TypingRight WaylandAccessibilityRight::typing() const {
    return m_keyboards->isAvailable() ? TypingRight::Granted : TypingRight::Unavailable;
}

void WaylandAccessibilityRight::onChanged(std::function<void()> handler) {
    m_keyboards->onChanged([this, handler = std::move(handler)] {
        if (std::exchange(m_told, typing()) != typing())
            handler();
    });
}

} // namespace quorvane
