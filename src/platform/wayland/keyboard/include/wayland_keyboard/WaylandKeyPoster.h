// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/KeyPoster.h>

#include <QStringList>

#include <functional>
#include <memory>
#include <wayland_keyboard/WaylandVirtualKeyboards.h>

namespace quorvane {

/// Types on a keyboard of its own, which has a Latin V whatever layout the user has, and none of
/// the modifiers that the user holds. The keys are sent once the compositor has taken them: on a
/// machine with much to do it has them later than we wrote them.
class WaylandKeyPoster final : public KeyPoster {
public:
    /// So long a compositor may take over the keys; they are taken for sent then.
    static constexpr Seconds longestWait{0.9};

    /// `namesInFront` tells the names of the window that has the keyboard; none where nobody tells.
    /// The queue must outlive the poster.
    WaylandKeyPoster(
        std::shared_ptr<WaylandConnection> connection,
        std::shared_ptr<WaylandVirtualKeyboards> keyboards,
        MainQueue& queue,
        std::function<QStringList()> namesInFront);

    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override;
    void paste(const PasteTarget& target, PostHandler done) override;

private:
    void finish();

    std::shared_ptr<WaylandConnection> m_connection;
    std::shared_ptr<WaylandVirtualKeyboards> m_keyboards;
    MainQueue& m_queue;
    std::function<QStringList()> m_namesInFront;
    PostHandler m_done; ///< while keys are under way
    WaylandSubscription m_taken;
    Deadline m_end;
};

} // namespace quorvane
