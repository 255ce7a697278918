// SPDX-License-Identifier: MIT
#include <controls/OverlayScrollBar.h>
#include <controls/ScrollingSection.h>
#include <controls/SectionColumn.h>

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvane {

SectionColumn::SectionColumn(const QMargins& margins, int spacing, QWidget* parent)
    : QScrollArea(parent) {
    auto* column = new QWidget;
    m_sections = new QVBoxLayout(column);
    m_sections->setContentsMargins(margins);
    m_sections->setSpacing(spacing);
    setWidget(column);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    new OverlayScrollBar(this);
    // The background is the window's.
    viewport()->setAutoFillBackground(false);
    column->setAutoFillBackground(false);
}

void SectionColumn::add(QWidget* section, int stretch) {
    m_sections->addWidget(section, stretch);
}

void SectionColumn::addSpacing(int height) {
    m_sections->addSpacing(height);
}

void SectionColumn::addScrolling(QWidget* section, ScrollingSection& scrolling) {
    m_scrolling = &scrolling;
    add(section, 1);
    connect(
        verticalScrollBar(), &QScrollBar::rangeChanged, section, [&scrolling](int least, int most) {
            scrolling.setScrollBarShown(most <= least);
        });
}

int SectionColumn::heightForWidth(int width) const {
    const int heldBack = m_scrolling != nullptr ? m_scrolling->heldBack() : 0;
    return m_sections->totalHeightForWidth(width) + heldBack;
}

QSize SectionColumn::sizeHint() const {
    const auto hint = m_sections->totalSizeHint();
    return {hint.width(), heightForWidth(hint.width())};
}

QSize SectionColumn::minimumSizeHint() const {
    return {m_sections->totalMinimumSize().width(), 0};
}

bool SectionColumn::eventFilter(QObject* watched, QEvent* event) {
    const bool isLaidOutAnew = watched == widget() && event->type() == QEvent::LayoutRequest;
    if (isLaidOutAnew)
        shareHeight();
    const bool filtered = QScrollArea::eventFilter(watched, event);
    if (isLaidOutAnew)
        updateGeometry();
    return filtered;
}

void SectionColumn::resizeEvent(QResizeEvent* event) {
    shareHeight();
    QScrollArea::resizeEvent(event);
}

void SectionColumn::shareHeight() {
    if (m_scrolling == nullptr)
        return;
    const int missing = heightForWidth(viewport()->width()) - viewport()->height();
    m_scrolling->holdBack(std::max(missing, 0));
}

} // namespace quorvane
