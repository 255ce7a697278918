// SPDX-License-Identifier: MIT
#include "FreedMemory.h"
#include "KeptFocus.h"
#include "PanelPlacement.h"
#include "WindowActivation.h"

#include <app/Panel.h>
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
      m_surface(false, panelmetrics::cornerRadius),
      m_fittingHeight(0) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(u"Quorvane"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(content);
    setBackground(Background::Plain);
    new FocusRing(this);
    new KeptFocus(this);
    new FreedMemory(this);
    m_fittingHeight = fittingHeight();
}

void Panel::setBackground(Background background) {
    const bool isComposited = background == Background::Composited;
    if (isComposited && !testAttribute(Qt::WA_TranslucentBackground)) {
        // A native window keeps the kind of pixels that it was made with.
        if (testAttribute(Qt::WA_WState_Created))
            destroy();
        setAttribute(Qt::WA_TranslucentBackground);
    }
    m_surface = PopoverSurface(isComposited, panelmetrics::cornerRadius);
    layout()->setContentsMargins(shadow());
    const auto least =
        QSize(panelmetrics::width, panelplacement::minimumContentHeight).grownBy(shadow());
    setFixedWidth(least.width());
    setMinimumHeight(least.height());
    update();
}

QRect Panel::frame() const {
    return m_surface.placeIn(geometry());
}

void Panel::setFrame(const QRect& frame) {
    setGeometry(frame.marginsAdded(shadow()));
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
    const bool isInside = m_surface.placeIn(rect()).contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton && isInside)
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
    const auto theme = Theme::of(palette());
    m_surface.paint(painter, rect(), theme, {theme.windowBackground, theme.border});
    Q_EMIT painted();
}

} // namespace quorvane
