// SPDX-License-Identifier: MIT
#include "CalendarArrow.h"
#include "CalendarKeys.h"

#include <controls/TextButton.h>
#include <controls/TextStyle.h>
#include <entry/CalendarPicker.h>
#include <time/CalendarMoves.h>

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace quorvane {

namespace {

constexpr int padding = 12;
constexpr int titleIndent = 8;
constexpr int headerGap = 4;

} // namespace

CalendarPicker::CalendarPicker(
    Binding<Instant> date, MinDate minDate, const EntryDependencies& dependencies, QWidget* parent)
    : QWidget(parent),
      m_date(std::move(date)),
      m_minDate(std::move(minDate)),
      m_dependencies(dependencies),
      m_title(new QLabel(this)),
      m_grid(new CalendarGrid(this)),
      m_today(new TextButton(tr("Today"), this)) {
    m_title->setTextFormat(Qt::PlainText);
    layOut();
    followFont();
    connect(m_grid, &CalendarGrid::picked, this, &CalendarPicker::pick);
    connect(m_today, &TextButton::clicked, this, [this] { pick(today()); });
    refresh();
}

void CalendarPicker::refresh() {
    if (const auto chosen = chosenDay(); chosen != m_chosen) {
        m_chosen = chosen;
        showCursor(chosen);
    }
    mark();
}

void CalendarPicker::keyPressEvent(QKeyEvent* event) {
    const auto day = dayAfterKey(m_cursor, *event, layoutDirection(), m_dependencies.locale);
    if (!day) {
        QWidget::keyPressEvent(event);
        return;
    }
    showCursor(*day);
    mark();
    m_grid->dayAt(m_cursor)->setFocus(Qt::OtherFocusReason);
}

void CalendarPicker::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        followFont();
}

void CalendarPicker::layOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(headerGap);
    column->addLayout(makeHeader());
    column->addWidget(m_grid);
    column->addWidget(m_today, 0, Qt::AlignLeft);
}

QHBoxLayout* CalendarPicker::makeHeader() {
    auto* back = new CalendarArrow(CalendarArrow::Way::Back, tr("Previous month"), this);
    auto* onward = new CalendarArrow(CalendarArrow::Way::Onward, tr("Next month"), this);
    connect(back, &CalendarArrow::clicked, this, [this] { turnPage(-1); });
    connect(onward, &CalendarArrow::clicked, this, [this] { turnPage(1); });

    auto* header = new QHBoxLayout;
    header->setSpacing(0);
    header->addSpacing(titleIndent);
    header->addWidget(m_title, 1);
    header->addWidget(back);
    header->addWidget(onward);
    return header;
}

void CalendarPicker::turnPage(int months) {
    showCursor(movedByMonths(m_cursor, months, m_dependencies.locale));
    mark();
}

void CalendarPicker::pick(CivilDay day) {
    // The minimum may have moved since the days were marked.
    if (const auto earliest = earliestDay(); !earliest || day >= *earliest)
        m_date.set(movedToDay(m_date.get(), day, zone()));
    showCursor(chosenDay());
    refresh();
}

void CalendarPicker::showCursor(CivilDay day) {
    const bool hadFocus = focusWidget() != nullptr && m_grid->isAncestorOf(focusWidget());
    m_cursor = day;
    const auto month = monthGrid(day, m_dependencies.locale);
    m_title->setText(month.title);
    m_grid->showMonth(month, day);
    setFocusProxy(m_grid->dayAt(day));
    if (hadFocus)
        m_grid->dayAt(day)->setFocus(Qt::OtherFocusReason);
}

void CalendarPicker::mark() {
    const auto earliest = earliestDay();
    m_grid->mark({today(), m_chosen.value_or(m_cursor), earliest});
    m_today->setEnabled(!earliest || today() >= *earliest);
}

void CalendarPicker::followFont() {
    m_title->setFont(textFont(font(), TextStyle::Headline));
}

std::optional<CivilDay> CalendarPicker::earliestDay() const {
    const auto minimum = m_minDate ? m_minDate() : std::nullopt;
    return minimum ? std::optional(civilDay(*minimum, zone())) : std::nullopt;
}

} // namespace quorvane
