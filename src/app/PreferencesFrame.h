// SPDX-License-Identifier: MIT
#pragma once

#include "UserMoves.h"

#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <platform/WindowTraits.h>
#include <platform/Workspace.h>
#include <settings/WindowFrameStore.h>

#include <QObject>
#include <QRect>
#include <QWidget>

#include <optional>

namespace quorvane {

/// Keeps the preferences at the place and height that the user gave them, else in the middle of the
/// screen where the user works. Where windows have no place that could be told, what is stored
/// stays as it is.
class PreferencesFrame final : public QObject {
    Q_OBJECT

public:
    /// All must outlive the frame.
    struct Dependencies {
        WindowFrameStore& frames;
        MainQueue& queue;
        const Workspace& workspace;
        const WindowTraits& windowTraits;
    };

    PreferencesFrame(QWidget& window, Dependencies dependencies);

    /// Before every show. A window that shows already stays where it is.
    void place();

    /// Saves a change that is due to be saved.
    void saveNow();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QRect home() const;
    void request(const QRect& frame);
    void handleFrameChanged();
    void save();

    QWidget& m_window;
    Dependencies m_dependencies;
    UserMoves m_userMoves;
    std::optional<QRect> m_usersFrame;
    QRect m_requested;
    std::optional<Deadline> m_saving; ///< pending while a change is not saved yet
    std::optional<Deadline> m_asking; ///< pending before it asks once more for its place
    bool m_hasAskedAgain = false;     ///< since it was placed
};

} // namespace quorvane
