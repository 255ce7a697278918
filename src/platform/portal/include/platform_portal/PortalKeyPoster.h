// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/KeyPoster.h>
#include <platform/KeyboardLayout.h>
#include <platform_portal/PortalKeyboard.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace quorvane {

/// Types by the portal. It names keys by their position, and never tells what is in front: so the
/// keys are Shift+Insert, which paste nearly everywhere, from the marked text in terminals. Where
/// the clipboard is the portal's there is no marked text to put ours into, and a terminal would
/// paste another one: there they are Ctrl+V, with the key that types a v.
class PortalKeyPoster final : public KeyPoster {
public:
    /// Whether a modifier that would change the paste keys is held down, as far as is known.
    using ModifierHeld = std::function<bool()>;

    /// From key to key. Compositors lose modifiers where the next key comes at once.
    static constexpr Seconds gap{0.016};

    /// The user lets go of a shortcut's keys within that.
    static constexpr Seconds longestWait{0.5};

    /// From the request to the last key at most, however slow the portal is.
    static constexpr Seconds patience{0.9};

    /// Queue and layout must outlive it.
    PortalKeyPoster(
        std::shared_ptr<PortalKeyboard> keyboard,
        MainQueue& queue,
        const KeyboardLayout& layout,
        ModifierHeld isModifierHeld);
    ~PortalKeyPoster() override;

    PortalKeyPoster(const PortalKeyPoster&) = delete;
    PortalKeyPoster& operator=(const PortalKeyPoster&) = delete;

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override;
    void paste(const PasteTarget& target, PostHandler done) override;

private:
    struct Stroke {
        std::uint16_t key = 0;
        PortalKeyboard::Move move = PortalKeyboard::Move::Down;
    };

    [[nodiscard]] std::vector<Stroke> strokesOf(PasteKeys keys) const;

    void begin(Seconds waited);
    void send(std::size_t index);
    void note(const Stroke& stroke);
    void finish(PostOutcome outcome);
    void releaseAll();

    std::shared_ptr<PortalKeyboard> m_keyboard;
    MainQueue& m_queue;
    const KeyboardLayout& m_layout;
    ModifierHeld m_isModifierHeld;
    PostHandler m_done; ///< while a paste is under way
    std::vector<Stroke> m_strokes;
    std::vector<std::uint16_t> m_down;
    Deadline m_next;
    Deadline m_end;
    /// Held weakly by the paste under way: answers for an earlier one are dropped.
    std::shared_ptr<const bool> m_isWanted;
};

} // namespace quorvane
