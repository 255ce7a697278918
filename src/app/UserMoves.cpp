// SPDX-License-Identifier: MIT
#include "UserMoves.h"

#include <QEvent>

namespace quorvane {

namespace {

// Window managers have done with a new window well before.
constexpr Seconds stillness{0.5};

// A window manager may report the last step of a move after the button is up.
constexpr Seconds pauseInGesture{0.5};

} // namespace

UserMoves::UserMoves(QWidget& window, MainQueue& queue, const WindowTraits& traits)
    : m_window(window),
      m_queue(queue),
      m_traits(traits) {
    window.installEventFilter(this);
    // Window managers move windows off a screen that goes, and out of the way of a new bar.
    connect(&m_screens, &ScreenChanges::changed, this, &UserMoves::settleAnew);
}

UserMoves::Cause UserMoves::causeOfChange() {
    if (m_isStill || m_hasBegun || m_gesture || isHeld()) {
        m_gesture = m_queue.after(pauseInGesture, [this] { m_gesture.reset(); });
        return Cause::User;
    }
    settleAnew();
    return Cause::WindowManager;
}

void UserMoves::noteRequest() {
    settleAnew();
    m_isAnswering = m_hasSettled;
}

void UserMoves::begin() {
    settleAnew();
    m_hasBegun = true;
}

bool UserMoves::eventFilter(QObject*, QEvent* event) {
    const auto type = event->type();
    if (type == QEvent::Show)
        handleShow();
    else if (type == QEvent::ActivationChange && !m_isStill)
        settleAnew();
    return false;
}

void UserMoves::handleShow() {
    m_heldBefore = m_traits.heldInput().value_or(HeldInput{});
    m_gesture.reset();
    m_hasSettled = false;
    m_hasBegun = false;
    m_isAnswering = false;
    settleAnew();
}

void UserMoves::settleAnew() {
    m_isStill = false;
    m_settling.reset();
    if (m_window.isVisible() && m_window.isActiveWindow())
        m_settling = m_queue.after(stillness, [this] { settle(); });
}

void UserMoves::settle() {
    m_isStill = true;
    m_hasSettled = true;
    m_hasBegun = false;
    m_isAnswering = false;
}

bool UserMoves::isHeld() const {
    const auto held = m_traits.heldInput();
    if (!held)
        return false;
    return held->hasButtonSince(m_heldBefore) ||
           (!m_isAnswering && held->hasKeySince(m_heldBefore));
}

} // namespace quorvane
