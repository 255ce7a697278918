// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/FocusRing.h>
#include <controls/FocusShaped.h>
#include <controls/Theme.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFocusEvent>
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

} // namespace

FocusRing::FocusRing(QWidget* window) : QWidget(window), m_window(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
    // Only the widget that gets the focus is told the reason.
    qApp->installEventFilter(this);
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
