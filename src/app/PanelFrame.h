// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

#include <QObject>
#include <QRect>

#include <deque>
#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <optional>
#include <settings/WindowFrameStore.h>

class QScreen;

namespace quorvane {

class Panel;

/// Where the panel stands and how high it is: at the place and height that the user gave it, as
/// high as its content needs, on a screen.
class PanelFrame final : public QObject {
    Q_OBJECT

public:
    /// What the frame depends on; all must outlive it.
    struct Dependencies {
        WindowFrameStore& frames;
        MainQueue& queue;
        const Workspace& workspace;
    };

    PanelFrame(Panel& panel, Dependencies dependencies);

    /// The stored frame, else one around the content in the middle of the screen.
    void restore();

    /// Into the middle of the screen, if no screen shows any of it.
    void moveOntoScreen();

    /// What moves the panel from now on is the user, and worth keeping. Any number of calls.
    void follow();

    /// Saves what is not saved yet.
    void saveNow();

private:
    void request(const QRect& frame);
    void fit();
    void fitOnceThePointerIsGone();
    void noteChange();
    void noteScreenGone(QScreen* gone);
    void centre();
    void save();

    Panel& m_panel;
    Dependencies m_dependencies;
    std::optional<int> m_userHeight;  ///< less than that only the user gives it
    std::deque<QRect> m_requested;    ///< the latest of ours, which the desktop reports back late
    std::optional<Deadline> m_saving; ///< there is a frame that is not saved yet
    std::optional<Deadline> m_rescue; ///< its screen is gone
    bool m_heldInPlace = false;       ///< it is to grow once the pointer has left
};

} // namespace quorvane
