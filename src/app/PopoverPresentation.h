// SPDX-License-Identifier: MIT
#pragma once

#include "InterfaceCallbacks.h"
#include "PopoverAnchor.h"

#include <controls/InputDevice.h>
#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <platform/WindowTraits.h>
#include <platform/Workspace.h>

#include <QPointer>

#include <memory>
#include <optional>

namespace quorvane {

class StatusPopover;
class TrayIcon;

/// The interface as a popover at the tray icon. The window is made when it is needed first, and
/// kept while hidden.
class PopoverPresentation final {
public:
    /// All must outlive the presentation.
    struct Dependencies {
        const TrayIcon& trayIcon;
        MainQueue& mainQueue;
        const Workspace& workspace;
        const WindowTraits& windowTraits;
    };

    PopoverPresentation(Dependencies dependencies, InterfaceCallbacks callbacks);
    ~PopoverPresentation();

    PopoverPresentation(const PopoverPresentation&) = delete;
    PopoverPresentation& operator=(const PopoverPresentation&) = delete;

    /// Makes the hidden window, and all that its first paint will need.
    void makeReady();

    /// Shows nothing while the desktop has no place for the icon.
    void show(InputDevice device);
    void close();

    /// Destroys the window.
    void discard();

    /// Shows the contents anew, for changes that the model does not announce.
    void refreshSoon();

    [[nodiscard]] bool isShown() const;

    /// Whether the click on the icon that is reported now belongs to the press that has just closed
    /// the popover. Asked once for each click: the answer is true for one click at most.
    [[nodiscard]] bool takeDismissingClick();

    [[nodiscard]] PopoverAnchor& anchor() { return m_anchor; }

    /// The content; null before it is made.
    [[nodiscard]] PopoverView* view() const { return m_view; }

private:
    void setupPopover();
    void noteDismissal();

    Dependencies m_dependencies;
    InterfaceCallbacks m_callbacks;
    PopoverAnchor m_anchor;
    std::unique_ptr<StatusPopover> m_popover;
    QPointer<PopoverView> m_view;
    std::optional<Deadline> m_dismissal; ///< a press outside has closed the popover just now
};

} // namespace quorvane
