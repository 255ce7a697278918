// SPDX-License-Identifier: MIT
#include <controls/TextStyle.h>
#include <controls/Theme.h>
#include <entry/CalendarGrid.h>

#include <QPainter>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

constexpr int columns = 7;
constexpr int weekdayHeight = 24;
constexpr int cellSize = CalendarDay::cellSize;

} // namespace

CalendarGrid::CalendarGrid(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CalendarGrid::showMonth(const MonthGrid& month, CivilDay cursor) {
    m_month = month;
    setDayCount(month.days.size());
    replaceFocused(cursor);
    for (std::size_t index = 0; index < month.days.size(); ++index) {
        auto* day = m_days[index];
        day->setDay(month.days[index]);
        day->setFocusPolicy(day->day() == cursor ? Qt::StrongFocus : Qt::ClickFocus);
    }
    placeDays();
    updateGeometry();
    update();
}

// A screen reader reads what takes the focus, but not what has it and becomes another day.
void CalendarGrid::replaceFocused(CivilDay cursor) {
    for (std::size_t index = 0; index < m_month.days.size(); ++index) {
        const auto& day = m_month.days[index].day;
        if (day == cursor && m_days[index]->hasFocus() && m_days[index]->day() != day)
            std::swap(m_days[index], m_days[(index + 1) % m_month.days.size()]);
    }
}

void CalendarGrid::mark(const Marks& marks) {
    for (auto* day : m_days) {
        day->setMarks(
            {day->day() == marks.today,
             day->day() == marks.chosen,
             marks.earliest && day->day() < *marks.earliest,
             day->day() == marks.typed});
    }
}

void CalendarGrid::setDayFilter(QObject& filter) {
    m_dayFilter = &filter;
    for (auto* day : m_days)
        day->installEventFilter(m_dayFilter);
}

CalendarDay* CalendarGrid::dayAt(CivilDay day) const {
    const auto found = std::ranges::find(m_month.days, day, &MonthGridDay::day);
    return found == m_month.days.end()
               ? nullptr
               : m_days[static_cast<std::size_t>(found - m_month.days.begin())];
}

QSize CalendarGrid::sizeHint() const {
    return {columns * cellSize, weekdayHeight + m_month.weekCount() * cellSize};
}

void CalendarGrid::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(textFont(font(), TextStyle::Caption, QFont::Medium));
    painter.setPen(Theme::of(palette()).secondaryText);
    for (int column = 0; column < columns; ++column) {
        const QRect cell(columnLeft(column), 0, cellSize, weekdayHeight);
        const auto& name = m_month.weekdayNames.at(static_cast<std::size_t>(column));
        painter.drawText(cell, Qt::AlignCenter, name);
    }
}

void CalendarGrid::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeDays();
}

void CalendarGrid::setDayCount(std::size_t count) {
    while (m_days.size() < count) {
        m_days.push_back(new CalendarDay(this));
        connect(m_days.back(), &CalendarDay::picked, this, &CalendarGrid::picked);
        if (m_dayFilter != nullptr)
            m_days.back()->installEventFilter(m_dayFilter);
    }
    // The last days of a long month wait for the next: one of them may be what is being pressed.
    for (std::size_t index = 0; index < m_days.size(); ++index)
        m_days[index]->setVisible(index < count);
}

void CalendarGrid::placeDays() {
    for (std::size_t index = 0; index < m_month.days.size(); ++index) {
        const int top = weekdayHeight + m_month.rowOf(index) * cellSize;
        m_days[index]->move(columnLeft(m_month.columnOf(index)), top);
    }
}

int CalendarGrid::columnLeft(int column) const {
    return (layoutDirection() == Qt::RightToLeft ? columns - 1 - column : column) * cellSize;
}

} // namespace quorvane
