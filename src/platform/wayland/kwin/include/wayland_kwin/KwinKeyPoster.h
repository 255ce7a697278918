// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyPoster.h>
#include <platform/KeyboardLayout.h>

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>
#include <wayland_kwin/KwinFakeInput.h>

namespace quorvane {

/// Types on the user's own keyboard: V is the key that types it in the layout in use, and where
/// none does, Shift+Insert pastes.
class KwinKeyPoster final : public KeyPoster {
public:
    /// `namesInFront` tells the names of the window that has the keyboard; none where nobody tells.
    /// The layout must outlive the poster.
    KwinKeyPoster(
        std::shared_ptr<KwinFakeInput> input,
        const KeyboardLayout& layout,
        std::function<QStringList()> namesInFront);

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override;
    void paste(const PasteTarget& target, PostHandler done) override;

private:
    using Keys = std::vector<std::uint32_t>;

    [[nodiscard]] std::optional<Keys> keysOf(PasteKeys keys) const;
    [[nodiscard]] std::optional<std::uint32_t> latinV() const;

    std::shared_ptr<KwinFakeInput> m_input;
    const KeyboardLayout& m_layout;
    std::function<QStringList()> m_namesInFront;
};

} // namespace quorvane
