// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/OverlayScrollBar.h>
#include <controls/Theme.h>

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int barWidth = 12; ///< wider than the thumb, so that the pointer finds it
constexpr int thumbWidth = 4;
constexpr int thumbInset = 4;
constexpr int endInset = 4;
constexpr double leastThumb = 24;

} // namespace

OverlayScrollBar::OverlayScrollBar(QAbstractScrollArea* area)
    : QScrollBar(Qt::Vertical, area),
      m_area(area) {
    setFocusPolicy(Qt::NoFocus);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->installEventFilter(this);
    const auto* original = area->verticalScrollBar();
    connect(original, &QScrollBar::rangeChanged, this, &OverlayScrollBar::follow);
    connect(original, &QScrollBar::valueChanged, this, &QScrollBar::setValue);
    connect(this, &QScrollBar::valueChanged, original, &QScrollBar::setValue);
    follow();
}

void OverlayScrollBar::setSuppressed(bool suppressed) {
    m_isSuppressed = suppressed;
    follow();
}

bool OverlayScrollBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutDirectionChange)
        follow();
    return QScrollBar::eventFilter(watched, event);
}

void OverlayScrollBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    fillRounded(painter, thumb(), thumbWidth / 2.0, Theme::of(palette()).disabledText);
}

void OverlayScrollBar::follow() {
    const auto* original = m_area->verticalScrollBar();
    setRange(original->minimum(), original->maximum());
    setPageStep(original->pageStep());
    setSingleStep(original->singleStep());
    setValue(original->value());
    const QRect edge(m_area->width() - barWidth, 0, barWidth, m_area->height());
    setGeometry(QStyle::visualRect(m_area->layoutDirection(), m_area->rect(), edge));
    setVisible(!m_isSuppressed && maximum() > minimum());
    raise();
}

QRectF OverlayScrollBar::thumb() const {
    const double room = height() - 2.0 * endInset;
    const double total = maximum() - minimum() + pageStep();
    const double length = std::min(std::max(room * pageStep() / total, leastThumb), room);
    const double way = maximum() > minimum()
                           ? (value() - minimum()) / static_cast<double>(maximum() - minimum())
                           : 0;
    const double left =
        layoutDirection() == Qt::RightToLeft ? thumbInset : width() - thumbInset - thumbWidth;
    return {left, endInset + way * (room - length), thumbWidth, length};
}

} // namespace quorvane
