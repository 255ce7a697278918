// SPDX-License-Identifier: MIT
#pragma once

#include <platform/AccessibilityRight.h>

#include <memory>
#include <wayland_keyboard/WaylandVirtualKeyboards.h>

namespace quorvane {

/// Given by the compositor to every program, for as long as it lets programs bring keyboards.
class WaylandAccessibilityRight final : public AccessibilityRight {
public:
    explicit WaylandAccessibilityRight(std::shared_ptr<WaylandVirtualKeyboards> keyboards);

    [[nodiscard]] bool mayReadShortcut() const override { return true; }

    [[nodiscard]] TypingRight typing() const override;

    [[nodiscard]] bool canPrompt() const override { return false; }

    void prompt() override {}

    void onChanged(std::function<void()> handler) override;

private:
    std::shared_ptr<WaylandVirtualKeyboards> m_keyboards;
    TypingRight m_told;
};

} // namespace quorvane
