// SPDX-License-Identifier: MIT
#include <utility>
#include <wayland_kwin/KwinAccessibilityRight.h>

namespace quorvane {

KwinAccessibilityRight::KwinAccessibilityRight(std::shared_ptr<KwinFakeInput> input)
    : m_input(std::move(input)) {
}

TypingRight KwinAccessibilityRight::typing() const {
    return m_input->isAvailable() ? TypingRight::Granted : TypingRight::Unavailable;
}

void KwinAccessibilityRight::onChanged(std::function<void()> handler) {
    m_input->onChanged(std::move(handler));
}

} // namespace quorvane
