// SPDX-License-Identifier: MIT
#pragma once

#include <platform/AccessibilityRight.h>

#include <memory>
#include <wayland_kwin/KwinFakeInput.h>

namespace quorvane {

/// Given by the installed desktop entry, for as long as KWin runs.
class KwinAccessibilityRight final : public AccessibilityRight {
public:
    explicit KwinAccessibilityRight(std::shared_ptr<KwinFakeInput> input);

    [[nodiscard]] bool mayReadShortcut() const override { return true; }

    [[nodiscard]] TypingRight typing() const override;

    [[nodiscard]] bool canPrompt() const override { return false; }

    void prompt() override {}

    void onChanged(std::function<void()> handler) override;

private:
    std::shared_ptr<KwinFakeInput> m_input;
};

} // namespace quorvane
