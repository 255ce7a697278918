// SPDX-License-Identifier: MIT
#pragma once

#include "UserMoves.h"

#include <app/Panel.h>
#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <platform/WindowTraits.h>
#include <platform/Workspace.h>
#include <settings/WindowFrameStore.h>

#include <QObject>
#include <QRect>

#include <deque>
#include <optional>

class QScreen;

namespace quorvane {

/// Keeps the panel where the user put it, else in the middle of the screen where the user works,
/// and at least as high as its content needs and as the user made it. What a window manager does to
/// it by itself, and its own growth, are neither kept nor stored. Where windows have no place that
/// could be told, what is stored stays as it is.
class PanelFrame final : public QObject {
    Q_OBJECT

public:
    /// All must outlive the frame.
    struct Dependencies {
        WindowFrameStore& frames;
        MainQueue& queue;
        const Workspace& workspace;
        const WindowTraits& windowTraits;
    };

    PanelFrame(Panel& panel, Dependencies dependencies);

    /// Before every show. A panel that shows already is moved only if no screen shows any part of
    /// it.
    void place();

    /// The panel stays where it is, whatever shadow it has around it.
    void setBackground(Panel::Background background);

    /// Saves a change that is due to be saved.
    void saveNow();

private:
    [[nodiscard]] QRect homeFrame();
    [[nodiscard]] QRect homeArea() const;
    [[nodiscard]] int wantedHeight();
    void goHome();
    void request(const QRect& frame);
    void fit();
    void fitAfterPointerLeft();
    void handleFrameChanged();
    [[nodiscard]] bool isRequestedHeight(int height) const;
    void takeOver(const QRect& usersFrame);
    void handleManagersChange(const QRect& frame);
    void handleScreenRemoved(QScreen* removed);
    void handleScreensChanged();
    void centre();
    void startMove();
    void save();

    Panel& m_panel;
    Dependencies m_dependencies;
    UserMoves m_userMoves;
    ScreenChanges m_screens;
    std::optional<QRect> m_usersFrame;    ///< where the user put it, as high as it was then
    std::optional<int> m_usersHeight;     ///< the least height; only the user makes the panel lower
    QRect m_home;                         ///< where it stands, but for growth
    int m_contentHeight;                  ///< that the height was last chosen for
    int m_height;                         ///< of choice, though no screen may have room for it
    int m_lastHeight = 0;                 ///< requested or reported
    std::deque<QRect> m_requested;        ///< the latest, which the window manager reports later
    std::optional<Deadline> m_saving;     ///< pending while a change is not saved yet
    std::optional<Deadline> m_asking;     ///< pending before it asks once more for its place
    std::optional<Deadline> m_recentring; ///< pending after its screen was removed
    bool m_hasAskedAgain = false;         ///< since it was placed
    bool m_isUnseen = false;              ///< not painted since it was placed
    bool m_heldInPlace = false;           ///< it moves once the pointer has left
};

} // namespace quorvane
