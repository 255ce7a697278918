// SPDX-License-Identifier: MIT
#include "StatusPopover.h"

#include "PanelPlacement.h"

#include <controls/DevicePixels.h>
#include <controls/FocusRing.h>
#include <controls/PopoverPlacement.h>
#include <controls/PopoverShadow.h>
#include <controls/Theme.h>

#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr double cornerRadius = 12;
constexpr int screenMargin = 8;

} // namespace

StatusPopover::StatusPopover(QWidget* content, Background background)
    : QWidget(nullptr, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint),
      m_content(content),
      m_background(background) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_TranslucentBackground, m_background == Background::Composited);
    setWindowTitle(u"Quorvane"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(
        m_background == Background::Composited ? popoverShadowMargins : QMargins());
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(content);
    new FocusRing(this);
}

int StatusPopover::contentHeight() const {
    return panelplacement::contentHeight(panelplacement::fittingHeight(*m_content));
}

void StatusPopover::showAt(const PopoverAnchor::Place& place) {
    m_place = place;
    fit();
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
    if (surface().contains(event->position().toPoint()))
        return;
    Q_EMIT dismissed();
    close();
}

void StatusPopover::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    if (m_background == Background::Composited) {
        paintPopoverShadow(painter, surface(), cornerRadius, theme);
        fillRounded(painter, surface(), cornerRadius, theme.windowBackground);
        frameRounded(painter, surface(), cornerRadius, theme.border, 1);
    } else {
        painter.fillRect(rect(), theme.windowBackground);
        frameRounded(painter, rect(), 0, theme.border, 1);
    }
    Q_EMIT painted();
}

QRect StatusPopover::surface() const {
    return m_background == Background::Composited ? rect().marginsRemoved(popoverShadowMargins)
                                                  : rect();
}

void StatusPopover::fit() {
    const int availableHeight = m_place.available.height() - 2 * screenMargin;
    const QSize size(panelplacement::contentWidth, std::min(contentHeight(), availableHeight));
    // Centred at the anchor, as far as the edges of the screen allow.
    QRect anchor(QPoint(), QSize(size.width(), m_place.anchor.height()));
    anchor.moveCenter(m_place.anchor.center());
    const auto placed =
        popoverPlacement(anchor, size, m_place.available, PopoverAlignment::LeftEdges);
    setGeometry(
        m_background == Background::Composited ? placed.marginsAdded(popoverShadowMargins)
                                               : placed);
}

} // namespace quorvane
