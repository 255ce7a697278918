// SPDX-License-Identifier: MIT
#pragma once

#include <controls/RoleWidget.h>
#include <hotkey/HotKeyCombo.h>
#include <loop/MainQueue.h>

#include <QPointer>

#include <functional>
#include <memory>

class QKeyEvent;

namespace quorvane {

class HeldModifiers;
class RepeatedKeys;

/// Has the keyboard's focus while a shortcut is recorded, and swallows every key for as long as it
/// has it: Tab, Return, menu keys and the window's own shortcuts too. Draws nothing.
///
/// The focus, never a grab: the desktop's own keys, and the global shortcut that is armed, stay
/// what they are.
class KeyCapture final : public RoleWidget {
    Q_OBJECT

public:
    /// What the keys mean. Nothing is called while nothing is recorded.
    struct Callbacks {
        /// A key with at least one of Shift, Control, Option and Command.
        std::function<void(HotKeyCombo)> onCombo;
        /// Which modifiers are held has changed; lock keys included.
        std::function<void(ModifierFlags)> onModifiers;
        /// Escape, whatever is held with it; or the focus went to another control, or the window
        /// away. A window that is merely no longer the active one keeps its recording: the global
        /// shortcut does that, and the user comes back to finish.
        std::function<void()> onCancel;
    };

    /// `queue` must outlive it.
    KeyCapture(MainQueue& queue, Callbacks callbacks, QWidget* parent);
    ~KeyCapture() override;

    [[nodiscard]] bool isRecording() const { return m_isRecording; }

    /// Takes the focus, or gives it up, in a later event-loop iteration: after the views that show
    /// the recording have changed.
    void setIsRecording(bool isRecording);

    /// Who gets the focus that is given up; nobody if there is none.
    void setNextFocus(QWidget* nextFocus) { m_nextFocus = nextFocus; }

    bool event(QEvent* event) override;

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void settleFocus();
    void keyDown(const QKeyEvent& event);
    void keyUp(const QKeyEvent& event);
    void reportModifiers(ModifierFlags flags);
    void cancel();

    MainQueue& m_queue;
    Callbacks m_callbacks;
    QPointer<QWidget> m_nextFocus;
    std::unique_ptr<HeldModifiers> m_held;
    std::unique_ptr<RepeatedKeys> m_repeats;
    bool m_isRecording = false;
};

} // namespace quorvane
