// SPDX-License-Identifier: MIT
#include "SegmentButton.h"

#include <controls/ChipSurface.h>
#include <controls/SegmentedRow.h>

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace quorvane {

namespace {

constexpr double disabledOpacity = 0.4;

} // namespace

SegmentedRow::SegmentedRow(QWidget* parent) : ChoiceWidget(parent) {
    setFixedHeight(ChipSurface::height);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

std::optional<int> SegmentedRow::selectedIndex() const {
    const auto found = std::ranges::find_if(m_segments, &SegmentButton::isChecked);
    return found == m_segments.end() ? std::nullopt
                                     : std::optional(static_cast<int>(found - m_segments.begin()));
}

void SegmentedRow::setChoices(
    const QStringList& titles, std::optional<int> selected, const QString& /*unlisted*/) {
    m_titles = titles;
    setSegmentCount(titles.size());
    for (qsizetype index = 0; index < titles.size(); ++index)
        m_segments[static_cast<std::size_t>(index)]->setText(titles[index]);
    select(selected);
    distributeSegmentWidths();
    updateGeometry();
}

QSize SegmentedRow::sizeHint() const {
    int widest = 0;
    for (const auto* segment : m_segments)
        widest = std::max(widest, segment->sizeHint().width());
    return {widest * static_cast<int>(m_segments.size()), ChipSurface::height};
}

bool SegmentedRow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return ChoiceWidget::eventFilter(watched, event);
    const auto segment = std::ranges::find(m_segments, watched);
    if (segment == m_segments.end())
        return false;
    const auto index = static_cast<int>(segment - m_segments.begin());
    const auto next = indexAfterKey(static_cast<QKeyEvent*>(event)->key(), index);
    if (!next)
        return false;
    choose(*next);
    m_segments[static_cast<std::size_t>(*next)]->setFocus(Qt::TabFocusReason);
    return true;
}

void SegmentedRow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    ChipSurface::paint(
        painter, rect(), Theme::of(palette()), PressableControl::VisualState::Normal);
}

void SegmentedRow::resizeEvent(QResizeEvent* event) {
    ChoiceWidget::resizeEvent(event);
    distributeSegmentWidths();
}

void SegmentedRow::changeEvent(QEvent* event) {
    ChoiceWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        distributeSegmentWidths();
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

void SegmentedRow::distributeSegmentWidths() {
    if (m_segments.empty())
        return;
    const auto count = static_cast<int>(m_segments.size());
    for (int index = 0; index < count; ++index) {
        const int left = width() * index / count;
        const int right = width() * (index + 1) / count;
        const QRect share(left, 0, right - left, height());
        m_segments[static_cast<std::size_t>(index)]->setGeometry(
            layoutDirection() == Qt::RightToLeft ? QRect(width() - right, 0, right - left, height())
                                                 : share);
    }
}

void SegmentedRow::setSegmentCount(qsizetype count) {
    while (std::ssize(m_segments) > count) {
        delete m_segments.back();
        m_segments.pop_back();
    }
    while (std::ssize(m_segments) < count) {
        auto* segment = new SegmentButton({}, this);
        const auto index = static_cast<int>(m_segments.size());
        segment->installEventFilter(this);
        connect(segment, &SegmentButton::clicked, this, [this, index] { choose(index); });
        segment->show();
        m_segments.push_back(segment);
    }
}

void SegmentedRow::select(std::optional<int> index) {
    const int count = static_cast<int>(m_segments.size());
    // Without a selection, Tab stops at the first segment.
    const int stop = index && *index >= 0 && *index < count ? *index : 0;
    for (int position = 0; position < count; ++position) {
        auto* segment = m_segments[static_cast<std::size_t>(position)];
        segment->setChecked(position == index);
        segment->setFocusPolicy(position == stop ? Qt::StrongFocus : Qt::ClickFocus);
    }
    setFocusProxy(count == 0 ? nullptr : m_segments[static_cast<std::size_t>(stop)]);
}

void SegmentedRow::choose(int index) {
    select(index);
    Q_EMIT chosen(index);
}

std::optional<int> SegmentedRow::indexAfterKey(int key, int index) const {
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const int last = static_cast<int>(m_segments.size()) - 1;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return std::clamp(mirrored && key == Qt::Key_Left ? index + 1 : index - 1, 0, last);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return std::clamp(mirrored && key == Qt::Key_Right ? index - 1 : index + 1, 0, last);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return std::nullopt;
    }
}

} // namespace quorvane
