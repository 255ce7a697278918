// SPDX-License-Identifier: MIT
#include "HeldModifiers.h"
#include "RepeatedKeys.h"

#include <platform/KeyCodes.h>
#include <recorder/KeyCapture.h>

#include <QKeyEvent>

#include <optional>
#include <utility>

namespace quorvane {

namespace {

/// None for a press that came from no keyboard and so has no position.
std::optional<std::uint32_t> keyCodeOf(const QKeyEvent& event) {
    return keyCodeFromScanCode(event.nativeScanCode());
}

/// By its place, as all keys go here, and by its name: whoever has moved Escape elsewhere needs a
/// way out as well.
bool isEscape(const QKeyEvent& event) {
    return event.key() == Qt::Key_Escape || keyCodeOf(event) == keycode::escape;
}

} // namespace

KeyCapture::KeyCapture(MainQueue& queue, Callbacks callbacks, QWidget* parent)
    : RoleWidget(QAccessible::HotkeyField, parent),
      m_queue(queue),
      m_callbacks(std::move(callbacks)),
      m_held(std::make_unique<HeldModifiers>()),
      m_repeats(std::make_unique<RepeatedKeys>()) {
    // Keys are what is wanted here, not what an input method would compose of them.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    // Reached by a recording only, never by Tab.
    setFocusPolicy(Qt::NoFocus);
    // The Menu key can be recorded and opens nothing.
    setContextMenuPolicy(Qt::PreventContextMenu);
}

KeyCapture::~KeyCapture() = default;

void KeyCapture::setIsRecording(bool isRecording) {
    m_isRecording = isRecording;
    m_held->forget();
    m_queue.async([self = QPointer(this)] {
        if (self)
            self->settleFocus();
    });
}

bool KeyCapture::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Accepted, it comes back as a press and triggers no shortcut.
        break;
    case QEvent::KeyPress:
        keyDown(*static_cast<QKeyEvent*>(event));
        break;
    case QEvent::KeyRelease:
        keyUp(*static_cast<QKeyEvent*>(event));
        break;
    default:
        return RoleWidget::event(event);
    }
    event->accept();
    return true;
}

void KeyCapture::focusOutEvent(QFocusEvent* event) {
    RoleWidget::focusOutEvent(event);
    if (!m_isRecording)
        return;
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason)
        reportModifiers(modifier::none);
    else
        cancel();
}

void KeyCapture::hideEvent(QHideEvent* event) {
    RoleWidget::hideEvent(event);
    if (m_isRecording)
        cancel();
}

void KeyCapture::settleFocus() {
    auto* top = window();
    if (top->windowHandle() == nullptr)
        return;
    const bool isFocused = top->focusWidget() == this;
    if (m_isRecording && !isFocused)
        setFocus(Qt::OtherFocusReason);
    else if (!m_isRecording && isFocused && m_nextFocus)
        m_nextFocus->setFocus(Qt::OtherFocusReason);
    else if (!m_isRecording && isFocused)
        clearFocus();
}

void KeyCapture::keyDown(const QKeyEvent& event) {
    // Nor is a key that was held before the recording began a press.
    if (!m_isRecording || event.isAutoRepeat())
        return;
    if (const auto flags = m_held->afterPress(event)) {
        m_callbacks.onModifiers(*flags);
        return;
    }
    if (isEscape(event)) {
        m_repeats->swallowRepeatsOf(event);
        cancel();
        return;
    }
    const auto keyCode = keyCodeOf(event);
    const auto modifiers = toCarbonModifiers(flagsOf(event));
    if (!keyCode || modifiers == 0)
        return;
    m_repeats->swallowRepeatsOf(event);
    m_callbacks.onCombo({*keyCode, modifiers});
}

void KeyCapture::keyUp(const QKeyEvent& event) {
    if (!m_isRecording || event.isAutoRepeat())
        return;
    if (const auto flags = m_held->afterRelease(event))
        m_callbacks.onModifiers(*flags);
}

void KeyCapture::reportModifiers(ModifierFlags flags) {
    m_held->forget();
    m_callbacks.onModifiers(flags);
}

void KeyCapture::cancel() {
    m_callbacks.onCancel();
}

} // namespace quorvane
