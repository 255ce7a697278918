// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/KeyPoster.h>
#include <platform/KeyboardLayout.h>

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>
#include <wayland_kwin/KwinFakeInput.h>
#include <wayland_kwin/KwinModifiers.h>

namespace quorvane {

/// Types on the user's own keyboard: V is the key that types it in the layout in use, and where
/// none does, Shift+Insert pastes. KWin 5 lets us release what the user holds; KWin 6 does not, but
/// tells when the user has.
class KwinKeyPoster final : public KeyPoster {
public:
    /// So long the user may take to let go of a modifier; nothing is typed after that.
    static constexpr Seconds longestWait{0.9};

    /// `namesInFront` tells the names of the window that has the keyboard; none where nobody tells.
    /// Queue and layout must outlive the poster.
    KwinKeyPoster(
        std::shared_ptr<KwinFakeInput> input,
        KwinModifiers modifiers,
        MainQueue& queue,
        const KeyboardLayout& layout,
        std::function<QStringList()> namesInFront);

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override;
    void paste(const PasteTarget& target, PostHandler done) override;

private:
    using Keys = std::vector<std::uint32_t>;

    [[nodiscard]] std::optional<Keys> keysOf(PasteKeys keys) const;
    [[nodiscard]] std::optional<std::uint32_t> latinV() const;

    void post(const Keys& keys);
    void finish(PostOutcome outcome);

    std::shared_ptr<KwinFakeInput> m_input;
    KwinModifiers m_modifiers;
    MainQueue& m_queue;
    const KeyboardLayout& m_layout;
    std::function<QStringList()> m_namesInFront;
    PostHandler m_done; ///< while a paste is under way
    Deadline m_end;
    WaylandSubscription m_release;
};

} // namespace quorvane
