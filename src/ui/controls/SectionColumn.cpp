// SPDX-License-Identifier: MIT
#include "SectionColumn.h"

#include <controls/OverlayScrollBar.h>
#include <panel/PanelMetrics.h>

#include <QEvent>
#include <QVBoxLayout>

namespace quorvane {

SectionColumn::SectionColumn(QWidget* parent) : QScrollArea(parent) {
    auto* column = new QWidget;
    m_sections = new QVBoxLayout(column);
    constexpr int side = panelmetrics::sideMargin - panelmetrics::overhang;
    m_sections->setContentsMargins(
        side, panelmetrics::sectionSpacing, side, panelmetrics::sectionSpacing);
    m_sections->setSpacing(panelmetrics::sectionSpacing);
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

int SectionColumn::heightForWidth(int width) const {
    return m_sections->totalHeightForWidth(width);
}

QSize SectionColumn::sizeHint() const {
    const auto hint = m_sections->totalSizeHint();
    return {hint.width(), heightForWidth(hint.width())};
}

QSize SectionColumn::minimumSizeHint() const {
    return {m_sections->totalMinimumSize().width(), 0};
}

bool SectionColumn::eventFilter(QObject* watched, QEvent* event) {
    const bool filtered = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return filtered;
}

} // namespace quorvane
