// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyPoster.h>

#include <QStringList>

#include <functional>
#include <memory>
#include <wayland_keyboard/WaylandVirtualKeyboards.h>

namespace quorvane {

/// Types on a keyboard of its own, which has a Latin V whatever layout the user has, and none of
/// the modifiers that the user holds.
class WaylandKeyPoster final : public KeyPoster {
public:
    /// `namesInFront` tells the names of the window that has the keyboard; none where nobody tells.
    WaylandKeyPoster(
        std::shared_ptr<WaylandVirtualKeyboards> keyboards,
        std::function<QStringList()> namesInFront);

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override;
    void paste(const PasteTarget& target, PostHandler done) override;

private:
    std::shared_ptr<WaylandVirtualKeyboards> m_keyboards;
    std::function<QStringList()> m_namesInFront;
};

} // namespace quorvane
