// SPDX-License-Identifier: MIT
#include "PanelPlacement.h"
#include "WindowActivation.h"

#include <app/Panel.h>
#include <controls/DevicePixels.h>
#include <controls/FocusRing.h>
#include <controls/Theme.h>
#include <panel/PanelMetrics.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <QVBoxLayout>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

Panel::Panel(QWidget* content)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_content(content),
      m_fittingHeight(0) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(u"Quorvane"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(content);
    setFixedWidth(panelmetrics::width);
    setMinimumHeight(panelplacement::minimumContentHeight);
    new FocusRing(this);
    m_fittingHeight = fittingHeight();
}

int Panel::fittingHeight() const {
    return panelplacement::fittingHeight(*m_content);
}

bool Panel::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        const int before = std::exchange(m_fittingHeight, fittingHeight());
        if (before != m_fittingHeight)
            Q_EMIT fittingHeightChanged();
    }
    return handled;
}

void Panel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // Qt goes on taking a window for the focused one if it was hidden just when the desktop gave it
    // the focus. It then ignores the focus that comes now, and no widget of the window gets it.
    if (QGuiApplication::focusWindow() == windowHandle())
        makeActive(*this);
}

void Panel::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    Q_EMIT frameChanged();
}

void Panel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Q_EMIT frameChanged();
}

void Panel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_pressed = event->globalPosition().toPoint();
}

// Not at the press: a click may be over before the window manager takes the pointer, which the
// panel would then follow until the next click.
void Panel::mouseMoveEvent(QMouseEvent* event) {
    if (!m_pressed || !event->buttons().testFlag(Qt::LeftButton))
        return;
    const auto way = event->globalPosition().toPoint() - *m_pressed;
    if (way.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        return;
    m_pressed.reset();
    Q_EMIT dragged();
}

void Panel::mouseReleaseEvent(QMouseEvent*) {
    m_pressed.reset();
}

void Panel::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    Q_EMIT pointerLeft();
}

void Panel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    frameRounded(painter, rect(), 0, Theme::of(palette()).border, 1);
    Q_EMIT painted();
}

} // namespace quorvane
