// SPDX-License-Identifier: MIT
#pragma once

#include "ScreenChanges.h"

#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <platform/WindowTraits.h>

#include <QObject>
#include <QWidget>

#include <optional>

namespace quorvane {

/// Tells the user's moves and resizes of a window from what a window manager does to it by itself,
/// above all while it maps the window. A change is the user's if it belongs to a move that began
/// with a press on the window, if it comes while a button or key is held that was not held when the
/// window was shown, or once the window has stood still with the focus for half a second.
class UserMoves final : public QObject {
    Q_OBJECT

public:
    enum class Cause { User, WindowManager };

    /// All must outlive it.
    UserMoves(QWidget& window, MainQueue& queue, const WindowTraits& traits);

    /// To be called once for each change of the window's frame that the program did not ask for.
    [[nodiscard]] Cause causeOfChange();

    /// The program asks for another frame: changes that follow may be the window manager's answer.
    /// Keys that are held meanwhile are typed into the window.
    void noteRequest();

    /// The user begins to move the window by its background.
    void begin();

    /// Whether the window has stood still with the focus since it was shown.
    [[nodiscard]] bool hasSettled() const { return m_hasSettled; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void handleShow();
    void settleAnew();
    void settle();
    [[nodiscard]] bool isHeld() const;

    QWidget& m_window;
    MainQueue& m_queue;
    const WindowTraits& m_traits;
    ScreenChanges m_screens;
    HeldInput m_heldBefore;             ///< when the window was shown: for the shortcut, say
    std::optional<Deadline> m_settling; ///< pending while the window stands still with the focus
    std::optional<Deadline> m_gesture;  ///< pending after each change of the user's
    bool m_isStill = false;
    bool m_hasSettled = false;
    bool m_hasBegun = false;    ///< a move by the background, which has not settled
    bool m_isAnswering = false; ///< a request after the first stillness has not settled
};

} // namespace quorvane
