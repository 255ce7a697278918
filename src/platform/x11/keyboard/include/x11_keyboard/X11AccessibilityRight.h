// SPDX-License-Identifier: MIT
#pragma once

#include <platform/AccessibilityRight.h>
#include <x11_server/X11Connection.h>

#include <memory>

namespace quorvane {

/// Whether the server lets its clients type: it has the XTEST extension, and answers to it.
[[nodiscard]] bool hasTestExtension(const X11Connection& connection);

/// X11 asks nobody: every client may read and type keys, where the server can do it at all.
class X11AccessibilityRight final : public AccessibilityRight {
public:
    explicit X11AccessibilityRight(std::shared_ptr<X11Connection> connection);

    [[nodiscard]] bool mayReadShortcut() const override;

    [[nodiscard]] TypingRight typing() const override;

    [[nodiscard]] bool canPrompt() const override { return false; }

    void prompt() override {}

    void onChanged(std::function<void()>) override {}

private:
    std::shared_ptr<X11Connection> m_connection;
};

} // namespace quorvane
