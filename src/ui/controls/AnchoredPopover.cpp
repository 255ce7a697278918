// SPDX-License-Identifier: MIT
#include "ComposedInPopover.h"

#include <controls/AnchoredPopover.h>
#include <controls/FocusRing.h>
#include <controls/PopoverFade.h>
#include <controls/Theme.h>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

namespace quorvane {

namespace {

constexpr double cornerRadius = 10;

} // namespace

AnchoredPopover::AnchoredPopover(QWidget* anchor, QWidget* content, const PopoverEffects& effects)
    : QWidget(anchor, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint),
      m_anchor(anchor),
      m_content(content),
      m_surface(effects.isComposited && effects.isComposited(), cornerRadius) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_TranslucentBackground, m_surface.isComposited());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(m_surface.margins());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(content);
    setFocusProxy(content->focusProxy() != nullptr ? content->focusProxy() : content);
    (new FocusRing(this))->setLastInput(FocusRing::lastInput(*anchor->window()));
    anchor->window()->installEventFilter(this);
}

AnchoredPopover::~AnchoredPopover() = default;

void AnchoredPopover::open() {
    adjustSize();
    place();
    fadeIn(*this, m_surface.isComposited());
    show();
    if (auto* focused = m_content->focusProxy())
        focused->setFocus(Qt::PopupFocusReason);
    else
        m_content->setFocus(Qt::PopupFocusReason);
    m_composed = std::make_unique<ComposedInPopover>(*this);
}

bool AnchoredPopover::eventFilter(QObject* watched, QEvent* event) {
    // A popover moves with its anchor, and closes when that is no longer visible.
    if (watched != this && event->type() == QEvent::Hide)
        close();
    else if (watched != this && event->type() == QEvent::Move && isVisible())
        place();
    return QWidget::eventFilter(watched, event);
}

void AnchoredPopover::mousePressEvent(QMouseEvent* event) {
    const auto point = event->globalPosition().toPoint();
    if (surface().contains(mapFromGlobal(point)))
        return;
    // Without this the press would go on to the anchor, which would open the next one.
    setAttribute(Qt::WA_NoMouseReplay, anchorRect().contains(point));
    close();
}

void AnchoredPopover::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        close();
    else
        QWidget::keyPressEvent(event);
}

void AnchoredPopover::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // Content that grows must not leave the screen, nor cover the anchor.
    if (isVisible())
        place();
}

void AnchoredPopover::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    m_surface.paint(painter, rect(), theme, {theme.popoverBackground, theme.popoverBorder});
}

void AnchoredPopover::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    m_composed.reset();
    if (m_anchor && m_anchor->window()->isVisible())
        giveFocusBack();
    Q_EMIT closed();
}

void AnchoredPopover::giveFocusBack() {
    if (auto* ring = FocusRing::of(*m_anchor->window()))
        ring->setLastInput(FocusRing::lastInput(*this));
    m_anchor->setFocus(Qt::PopupFocusReason);
}

QRect AnchoredPopover::surface() const {
    return m_surface.placeIn(rect());
}

QRect AnchoredPopover::anchorRect() const {
    return m_anchor ? QRect(m_anchor->mapToGlobal(QPoint()), m_anchor->size()) : QRect();
}

void AnchoredPopover::place() {
    if (!m_anchor)
        return;
    const auto mirrored = m_alignment == PopoverAlignment::LeftEdges ? PopoverAlignment::RightEdges
                                                                     : PopoverAlignment::LeftEdges;
    const auto alignment = m_anchor->layoutDirection() == Qt::RightToLeft ? mirrored : m_alignment;
    const auto placed = popoverPlacement(
        anchorRect(), surface().size(), m_anchor->screen()->availableGeometry(), alignment);
    move(placed.topLeft() - surface().topLeft());
}

} // namespace quorvane
