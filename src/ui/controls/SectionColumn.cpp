// SPDX-License-Identifier: MIT
#include <controls/OverlayScrollBar.h>
#include <controls/SectionColumn.h>

#include <QEvent>
#include <QVBoxLayout>

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
