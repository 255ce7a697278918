// SPDX-License-Identifier: MIT
#pragma once

#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <platform/Workspace.h>
#include <settings/WindowFrameStore.h>

#include <QObject>
#include <QRect>

#include <deque>
#include <optional>

class QScreen;

namespace quorvane {

class Panel;

/// Keeps the panel where the user put it and on a screen, and at least as high as its content needs
/// and as the user made it.
class PanelFrame final : public QObject {
    Q_OBJECT

public:
    /// All must outlive the frame.
    struct Dependencies {
        WindowFrameStore& frames;
        MainQueue& queue;
        const Workspace& workspace;
    };

    PanelFrame(Panel& panel, Dependencies dependencies);

    /// Applies the stored frame, else one that fits the content in the middle of the screen.
    void restore();

    /// Moves the panel into the middle of the screen if no screen shows any part of it.
    void moveOntoScreen();

    /// Takes changes of the frame that it did not request for the user's from now on, and saves
    /// them. Harmless when called again.
    void follow();

    /// Saves a change that is due to be saved.
    void saveNow();

private:
    void request(const QRect& frame);
    void fit();
    void fitAfterPointerLeft();
    void handleFrameChanged();
    void handleScreenRemoved(QScreen* removed);
    void centre();
    void save();

    Panel& m_panel;
    Dependencies m_dependencies;
    std::optional<int> m_userHeight;      ///< the least height; only the user makes the panel lower
    std::deque<QRect> m_requested;        ///< the latest, which the window manager reports later
    std::optional<Deadline> m_saving;     ///< pending while a change is not saved yet
    std::optional<Deadline> m_recentring; ///< pending after its screen was removed
    bool m_heldInPlace = false;           ///< it grows once the pointer has left
};

} // namespace quorvane
