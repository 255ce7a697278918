// SPDX-License-Identifier: MIT
#include "StatusPopover.h"

#include "FreedMemory.h"
#include "PanelPlacement.h"

#include <controls/FocusRing.h>
#include <controls/PopoverFade.h>
#include <controls/PopoverPlacement.h>
#include <controls/Theme.h>
#include <panel/PanelMetrics.h>

#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int screenMargin = 8;

} // namespace

StatusPopover::StatusPopover(QWidget* content, Background background)
    : QWidget(nullptr, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint),
      m_content(content),
      m_surface(background == Background::Composited, panelmetrics::cornerRadius) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_TranslucentBackground, m_surface.isComposited());
    setWindowTitle(u"Quorvane"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(m_surface.margins());
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(content);
    new FocusRing(this);
    new FreedMemory(this);
}

int StatusPopover::contentHeight() const {
    return panelplacement::contentHeight(panelplacement::fittingHeight(*m_content));
}

void StatusPopover::showAt(const PopoverAnchor::Place& place) {
    m_place = place;
    fit();
    if (!isVisible())
        fadeIn(*this, m_surface.isComposited());
    show();
    raise();
    activateWindow();
}

bool StatusPopover::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible())
        fit();
    return handled;
}

void StatusPopover::mousePressEvent(QMouseEvent* event) {
    if (m_surface.placeIn(rect()).contains(event->position().toPoint()))
        return;
    Q_EMIT dismissed();
    close();
}

void StatusPopover::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    m_surface.paint(painter, rect(), theme, {theme.windowBackground, theme.border});
    Q_EMIT painted();
}

void StatusPopover::fit() {
    const int availableHeight = m_place.available.height() - 2 * screenMargin;
    const QSize size(panelmetrics::width, std::min(contentHeight(), availableHeight));
    // Centred at the anchor, as far as the edges of the screen allow.
    QRect anchor(QPoint(), QSize(size.width(), m_place.anchor.height()));
    anchor.moveCenter(m_place.anchor.center());
    const auto placed =
        popoverPlacement(anchor, size, m_place.available, PopoverAlignment::LeftEdges);
    setGeometry(placed.marginsAdded(m_surface.margins()));
}

} // namespace quorvane
