// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/FocusRing.h>
#include <controls/FocusShaped.h>
#include <controls/Theme.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

namespace quorvane {

namespace {

constexpr double gap = 1;
constexpr double thickness = 2;
constexpr double extent = gap + thickness;

const FocusShaped* shapeOf(const QWidget* widget) {
    return dynamic_cast<const FocusShaped*>(widget);
}

/// Where the target can be seen: within what scrolls it, if anything does.
QRect sightOf(const QWidget* target, const QWidget* window) {
    for (const auto* widget = target; widget != window; widget = widget->parentWidget()) {
        const auto* area = qobject_cast<const QAbstractScrollArea*>(widget->parentWidget());
        if (area != nullptr && area->viewport() == widget)
            return {widget->mapTo(window, QPoint()), widget->size()};
    }
    return window->rect();
}

bool isByKeyboard(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

bool isModifier(int key) {
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

/// Whether the key moves the focus, or acts on what has it.
bool isNavigation(const QKeyEvent& event) {
    constexpr auto allowed = Qt::ShiftModifier | Qt::KeypadModifier;
    if ((event.modifiers() & ~allowed) != Qt::NoModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    default:
        return false;
    }
}

} // namespace

FocusRing::FocusRing(QWidget* window) : QWidget(window), m_window(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
    // Only the widget that gets the focus is told the reason.
    qApp->installEventFilter(this);
}

FocusRing* FocusRing::of(const QWidget& window) {
    return window.findChild<FocusRing*>(QString(), Qt::FindDirectChildrenOnly);
}

InputDevice FocusRing::lastInput(const QWidget& window) {
    const auto* ring = of(window);
    return ring != nullptr ? ring->m_lastInput : InputDevice::Pointer;
}

void FocusRing::setLastInput(InputDevice device) {
    m_lastInput = device;
    m_keyboardMoves = device == InputDevice::Keyboard;
    surroundFocused();
}

void FocusRing::surround(QWidget* target) {
    m_target = shapeOf(target) != nullptr ? target : nullptr;
    // What is destroyed loses the focus too late to be known as the target.
    if (m_target)
        connect(m_target, &QObject::destroyed, this, &FocusRing::follow, Qt::UniqueConnection);
    follow();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    // A key that belongs to a shortcut comes as no press.
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
        if (auto* widget = qobject_cast<QWidget*>(watched); widget && widget->window() == m_window)
            noteInput(*event);
        break;
    case QEvent::FocusIn:
        if (auto* widget = qobject_cast<QWidget*>(watched); widget && widget->window() == m_window)
            noteFocus(widget, static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::FocusOut:
        if (watched == m_target)
            surround(nullptr);
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::LayoutDirectionChange:
        if (m_target && watched->isWidgetType() &&
            (watched == m_target || static_cast<QWidget*>(watched)->isAncestorOf(m_target)))
            follow();
        break;
    default:
        break;
    }
    return false;
}

void FocusRing::noteInput(const QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) {
        m_lastInput = InputDevice::Pointer;
        return;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (isModifier(key.key()))
        return;
    m_lastInput = InputDevice::Keyboard;
    if (event.type() != QEvent::KeyPress || !isNavigation(key) || m_keyboardMoves)
        return;
    m_keyboardMoves = true;
    surroundFocused();
}

/// For a widget that has the focus already, and so will not be told of it.
void FocusRing::surroundFocused() {
    auto* focused = m_window->focusWidget();
    const bool isFocused = focused != nullptr && focused->hasFocus();
    surround(m_keyboardMoves && isFocused ? focused : nullptr);
}

void FocusRing::noteFocus(QWidget* widget, Qt::FocusReason reason) {
    if (reason == Qt::MouseFocusReason)
        m_keyboardMoves = false;
    else if (isByKeyboard(reason))
        m_keyboardMoves = true;
    surround(m_keyboardMoves ? widget : nullptr);
}

void FocusRing::follow() {
    const auto* shape = shapeOf(m_target);
    if (shape == nullptr || shape->focusOutline().rect.isEmpty() ||
        !m_target->isVisibleTo(m_window)) {
        hide();
        return;
    }
    const auto rect =
        shape->focusOutline().rect.translated(QPointF(m_target->mapTo(m_window, QPoint())));
    const auto ring = rect.adjusted(-extent, -extent, extent, extent).toAlignedRect();
    const auto seen = ring & sightOf(m_target, m_window);
    setGeometry(seen);
    raise();
    setVisible(!seen.isEmpty());
    update();
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
    const auto* shape = shapeOf(m_target);
    if (shape == nullptr)
        return;
    QPainter painter(this);
    const auto outline = shape->focusOutline();
    const auto origin = m_target->mapTo(m_window, QPoint()) - pos();
    const auto rect = outline.rect.translated(QPointF(origin));
    frameRounded(
        painter,
        rect.adjusted(-extent, -extent, extent, extent),
        outline.radius + extent,
        Theme::of(m_target->palette()).accentText,
        thickness);
}

} // namespace quorvane
