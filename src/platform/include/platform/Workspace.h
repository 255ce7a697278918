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
    QString title = {};       ///< what people call it; empty where the desktop does not tell

    friend bool operator==(const RunningApplication&, const RunningApplication&) = default;
};

/// What a desktop tells of the application in front: this one, none, or nothing that can be relied
/// on.
struct FrontmostApplication {
    std::optional<RunningApplication> application;
    /// Whether the desktop tells it. Otherwise the application is where the focus was last, if
    /// anywhere.
    bool isCertain = false;

    friend bool operator==(const FrontmostApplication&, const FrontmostApplication&) = default;
};

/// What is in front on the desktop, other than ourselves.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The application that keys go to; while a window of our own has them, the last one before.
    /// None where nothing, the desktop or a dock is in front, and where the last one is no longer
    /// shown: an older one never takes its place.
    [[nodiscard]] virtual FrontmostApplication frontmostApplication() const = 0;

    /// Whether the application is still shown: not closed, minimised or on another virtual desktop.
    [[nodiscard]] virtual bool isShown(const RunningApplication& application) const = 0;

    /// Whether keys that are posted now reach the application: it, or a dialog of its own, is in
    /// front, and no other program (a screen lock, an open menu) has taken the keyboard for itself.
    /// Changes nothing that the application could notice.
    [[nodiscard]] virtual bool receivesKeys(const RunningApplication& application) const = 0;

    /// The screen that shows the window with the keyboard focus; null if there is none, or the
    /// desktop does not tell.
    [[nodiscard]] virtual QScreen* focusedScreen() const = 0;

    /// Brings the application to the front; false if its window no longer exists, or the desktop
    /// lets nobody do it.
    [[nodiscard]] virtual bool activate(const RunningApplication& application) = 0;

    /// Called whenever another application may be in front, ours too; replaces an earlier handler.
    virtual void onFrontmostChanged(std::function<void()> handler) = 0;

    /// Called whenever another virtual desktop comes to the front; replaces an earlier handler.
    virtual void onActiveSpaceChanged(std::function<void()> handler) = 0;
};

} // namespace quorvane
