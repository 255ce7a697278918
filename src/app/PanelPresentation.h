// SPDX-License-Identifier: MIT
#pragma once

#include "InterfaceCallbacks.h"
#include "PanelFrame.h"

#include <controls/InputDevice.h>
#include <loop/MainQueue.h>
#include <platform/WindowTraits.h>
#include <platform/Workspace.h>
#include <settings/WindowFrameStore.h>

#include <QPointer>

#include <memory>

class QWindow;

namespace quorvane {

class Panel;

/// The interface as a panel. The window is made when it is needed first, and kept while hidden.
class PanelPresentation final {
public:
    /// All must outlive the presentation.
    struct Dependencies {
        WindowFrameStore& windowFrames;
        MainQueue& mainQueue;
        const Workspace& workspace;
        WindowTraits& windowTraits;
    };

    PanelPresentation(Dependencies dependencies, InterfaceCallbacks callbacks);
    ~PanelPresentation();

    PanelPresentation(const PanelPresentation&) = delete;
    PanelPresentation& operator=(const PanelPresentation&) = delete;

    /// Makes the hidden window, and all that its first paint will need.
    void makeReady();

    void show(InputDevice device);
    void hide();

    /// Destroys the window; its frame is kept.
    void discard();

    /// Saves a frame that is due to be saved.
    void saveFrameNow();

    /// Brings a visible panel to the front of the virtual desktop that the user has changed to.
    void activeSpaceDidChange();

    /// A compositing manager has come or gone: the panel gets its shadow and round corners, or
    /// loses them. Where that takes another window, one without the focus waits until it is shown
    /// again.
    void compositingDidChange();

    /// Shows the contents anew, for changes that the model does not announce.
    void refreshSoon();

    [[nodiscard]] bool isVisible() const;

    /// Null while nothing is visible.
    [[nodiscard]] QWindow* visibleWindow() const;

    /// The content; null before it is made.
    [[nodiscard]] PopoverView* view() const { return m_view; }

private:
    void setupPanel();
    void applyBackground();
    void announceShadow();

    Dependencies m_dependencies;
    InterfaceCallbacks m_callbacks;
    std::unique_ptr<Panel> m_panel;
    QPointer<PopoverView> m_view;
    std::unique_ptr<PanelFrame> m_frame; ///< exists as long as the panel
};

} // namespace quorvane
