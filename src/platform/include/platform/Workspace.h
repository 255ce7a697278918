// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

class QScreen;

namespace quorvane {

/// An application that was in front, with what is needed to bring it back.
struct RunningApplication {
    std::uint64_t window = 0; ///< the desktop's own handle
    QString name;             ///< for the log only

    friend bool operator==(const RunningApplication&, const RunningApplication&) = default;
};

/// What is in front on the desktop, other than ourselves.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The application that keys go to; while a window of our own has them, the last one before.
    /// None where nothing, the desktop or a dock is in front.
    [[nodiscard]] virtual std::optional<RunningApplication> frontmostApplication() const = 0;

    /// The screen that shows the window with the keyboard focus; null if there is none, or the
    /// desktop does not tell.
    [[nodiscard]] virtual QScreen* focusedScreen() const = 0;

    /// Brings the application to the front; false if its window no longer exists, or the desktop
    /// lets nobody do it.
    [[nodiscard]] virtual bool activate(const RunningApplication& application) = 0;

    /// Called whenever another virtual desktop comes to the front; replaces an earlier handler.
    virtual void onActiveSpaceChanged(std::function<void()> handler) = 0;
};

} // namespace quorvane
