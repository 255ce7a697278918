// SPDX-License-Identifier: MIT
#pragma once

#include <platform/AccessibilityRight.h>
#include <platform_portal/PortalKeyboard.h>

#include <memory>
#include <utility>

namespace quorvane {

/// The right to type that the portal gives when the user agrees; the shortcut needs none of it.
class PortalAccessibilityRight final : public AccessibilityRight {
public:
    explicit PortalAccessibilityRight(std::shared_ptr<PortalKeyboard> keyboard)
        : m_keyboard(std::move(keyboard)) {}

    [[nodiscard]] bool mayReadShortcut() const override { return true; }

    [[nodiscard]] TypingRight typing() const override { return m_keyboard->state(); }

    [[nodiscard]] bool canPrompt() const override { return m_keyboard->isOffered(); }

    void prompt() override { m_keyboard->open(); }

    void onChanged(std::function<void()> handler) override {
        m_keyboard->onChanged(std::move(handler));
    }

private:
    std::shared_ptr<PortalKeyboard> m_keyboard;
};

} // namespace quorvane
