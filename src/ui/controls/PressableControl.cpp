// SPDX-License-Identifier: MIT
#include "PressableAccessible.h"

#include <controls/PressableControl.h>

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace quorvane {

PressableControl::PressableControl(QWidget* parent) : QAbstractButton(parent) {
    PressableAccessible::install();
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
}

FocusOutline PressableControl::focusOutline() const {
    return {QRectF(rect()), cornerRadius()};
}

double PressableControl::disabledOpacity() const {
    return 0.4;
}

PressableControl::VisualState PressableControl::visualState() const {
    if (!isEnabled())
        return VisualState::Normal;
    if (isDown())
        return VisualState::Pressed;
    return underMouse() ? VisualState::Hover : VisualState::Normal;
}

void PressableControl::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    // What is disabled with all that surrounds it is faded with it as well.
    if (isEnabled() || isEnabledTo(parentWidget())) {
        paintControl(painter, theme);
        return;
    }
    // Faded as one: parts that overlap must not show through each other.
    const double scale = painter.deviceTransform().m11();
    QPixmap layer((QSizeF(size()) * scale).toSize());
    layer.setDevicePixelRatio(scale);
    layer.fill(Qt::transparent);
    QPainter layerPainter(&layer);
    paintControl(layerPainter, theme);
    constexpr double leastHighContrastOpacity = 0.6;
    painter.setOpacity(
        theme.isHighContrast ? std::max(disabledOpacity(), leastHighContrastOpacity)
                             : disabledOpacity());
    painter.drawPixmap(QPointF(), layer);
}

void PressableControl::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (isReturn && modifiers == Qt::NoModifier && !event->isAutoRepeat())
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void PressableControl::changeEvent(QEvent* event) {
    QAbstractButton::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        updateGeometry();
        update();
        break;
    default:
        break;
    }
}

QColor overlayFor(PressableControl::VisualState state, const Theme& theme) {
    switch (state) {
    case PressableControl::VisualState::Hover:
        return theme.hoverOverlay;
    case PressableControl::VisualState::Pressed:
        return theme.pressOverlay;
    case PressableControl::VisualState::Normal:
        break;
    }
    return Qt::transparent;
}

QColor accentFill(PressableControl::VisualState state, const Theme& theme) {
    switch (state) {
    case PressableControl::VisualState::Hover:
        return theme.accentHover;
    case PressableControl::VisualState::Pressed:
        return theme.accentPressed;
    case PressableControl::VisualState::Normal:
        break;
    }
    return theme.accent;
}

} // namespace quorvane
