// SPDX-License-Identifier: MIT
#include "CalendarArrow.h"
#include "CalendarKeys.h"
#include "ComposedInput.h"
#include "DateLine.h"
#include "TypedInstant.h"

#include <controls/Announcement.h>
#include <controls/TextButton.h>
#include <controls/TextStyle.h>
#include <entry/CalendarPicker.h>
#include <time/CalendarMoves.h>
#include <time/DateText.h>
#include <time/TypedDateReader.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
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
      m_today(new TextButton(tr("Today"), this)),
      m_line(new DateLine(dependencies.pasteReader, this)),
      m_composedInput(std::make_unique<ComposedInput>(*m_line)) {
    m_title->setTextFormat(Qt::PlainText);
    layOut();
    followFont();
    connect(m_grid, &CalendarGrid::picked, this, &CalendarPicker::pick);
    connect(m_today, &TextButton::clicked, this, [this] { pick(today()); });
    connect(m_line, &DateLine::textChanged, this, &CalendarPicker::followTyping);
    connect(m_line, &DateLine::left, this, &CalendarPicker::noteLeft);
    connect(m_composedInput.get(), &ComposedInput::begun, this, &CalendarPicker::openLine);
    connect(m_composedInput.get(), &ComposedInput::committed, this, [this] {
        m_line->setFocus(Qt::OtherFocusReason);
    });
    m_grid->setDayFilter(*m_composedInput);
    refresh();
}

CalendarPicker::~CalendarPicker() = default;

void CalendarPicker::refresh() {
    if (const auto chosen = chosenDay(); chosen != m_chosen) {
        m_chosen = chosen;
        showCursor(chosen);
    }
    mark();
}

void CalendarPicker::keyPressEvent(QKeyEvent* event) {
    const auto day = dayAfterKey(cursor(), *event, layoutDirection(), m_dependencies.locale);
    if (day)
        moveCursor(*day);
    else if (isReturn(*event))
        finish();
    else if (event->matches(QKeySequence::Cancel) && m_line->isOpen())
        closeLine();
    else if (beginsTyping(*event) && !m_line->hasFocus())
        beginTyping(*event);
    else
        QWidget::keyPressEvent(event);
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
    column->addWidget(m_line);
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
    if (isAllowed(day))
        m_date.set(movedToDay(m_date.get(), day, zone()));
    m_typed.reset();
    m_line->close();
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

void CalendarPicker::moveCursor(CivilDay day) {
    leaveLine();
    showCursor(day);
    mark();
    m_grid->dayAt(m_cursor)->setFocus(Qt::OtherFocusReason);
}

void CalendarPicker::finish() {
    if (m_line->hasFocus()) {
        takeTyped();
    } else if (isAllowed(cursor())) {
        pick(cursor());
        Q_EMIT finished();
    }
}

/// A press may have put the focus on a day that was refused.
CivilDay CalendarPicker::cursor() const {
    const auto* day = qobject_cast<CalendarDay*>(focusWidget());
    return day != nullptr ? day->day() : m_cursor;
}

void CalendarPicker::openLine() {
    m_line->open();
}

void CalendarPicker::beginTyping(const QKeyEvent& event) {
    openLine();
    m_line->setFocus(Qt::OtherFocusReason);
    QKeyEvent first(
        event.type(), event.key(), event.modifiers(), event.text(), event.isAutoRepeat());
    QCoreApplication::sendEvent(m_line, &first);
}

/// As if nothing had been typed.
void CalendarPicker::closeLine() {
    const QSignalBlocker blocker(m_line);
    m_typed.reset();
    showCursor(chosenDay());
    mark();
    m_grid->dayAt(m_cursor)->setFocus(Qt::OtherFocusReason);
    m_line->close();
}

/// The keys go on from what was typed, if that is a day.
void CalendarPicker::leaveLine() {
    if (!m_line->hasFocus())
        return;
    const bool isValid = refusalOf(typedDate()).isEmpty();
    m_grid->dayAt(m_cursor)->setFocus(Qt::OtherFocusReason);
    if (isValid) {
        m_typed.reset();
        const QSignalBlocker blocker(m_line);
        m_line->close();
    }
}

/// The line stays where it is: to leave it may be a press on a day, which must not move away.
void CalendarPicker::noteLeft() {
    if (!m_line->isOpen())
        return;
    const auto refusal = refusalOf(typedDate());
    if (refusal.isEmpty())
        return;
    m_typed.reset();
    m_line->replaceRefused(dateChipText(m_date.get(), zone(), m_dependencies.locale), refusal);
    mark();
}

void CalendarPicker::followTyping() {
    const auto date = typedDate();
    const auto instant = typedInstantOf(date);
    const auto before =
        std::exchange(m_typed, instant ? std::optional(civilDay(*instant, zone())) : std::nullopt);
    if (m_typed)
        showCursor(*m_typed);
    mark();
    const bool mayBecomeValid = date.state == TypingState::Unfinished || date.mayGrow;
    m_line->setRefusal(mayBecomeValid ? QString() : refusalOf(date));
    if (!m_typed || m_line->isRefused())
        return;
    const auto day = m_grid->dayAt(*m_typed)->accessibleName();
    m_line->setAccessibleDescription(day);
    if (m_typed != before)
        announce(*m_line, day);
}

void CalendarPicker::takeTyped() {
    if (m_line->text().isEmpty())
        return closeLine();
    const auto date = typedDate();
    const auto refusal = refusalOf(date);
    if (!refusal.isEmpty())
        return m_line->setRefusal(refusal);
    m_date.set(*typedInstantOf(date));
    refresh();
    Q_EMIT finished();
}

TypedDate CalendarPicker::typedDate() {
    if (!m_reader)
        m_reader = std::make_unique<TypedDateReader>(m_dependencies.locale);
    return m_reader->read(m_line->text(), chosenDay(), today());
}

std::optional<Instant> CalendarPicker::typedInstantOf(const TypedDate& date) const {
    return typedInstant(date, m_date.get(), zone());
}

bool CalendarPicker::isAllowed(CivilDay day) const {
    const auto earliest = earliestDay();
    return !earliest || day >= *earliest;
}

/// Empty for a date that can be taken.
QString CalendarPicker::refusalOf(const TypedDate& date) const {
    if (date.state != TypingState::Complete)
        return tr("Not a date");
    if (isAllowed(civilDay(*typedInstantOf(date), zone())))
        return {};
    const auto minimum = m_minDate ? m_minDate() : std::nullopt;
    return tr("Before %1")
        .arg(dateChipText(minimum.value_or(m_date.get()), zone(), m_dependencies.locale));
}

void CalendarPicker::mark() {
    m_grid->mark({today(), m_chosen.value_or(m_cursor), earliestDay(), m_typed});
    m_today->setEnabled(isAllowed(today()));
}

void CalendarPicker::followFont() {
    m_title->setFont(textFont(font(), TextStyle::Headline));
}

std::optional<CivilDay> CalendarPicker::earliestDay() const {
    const auto minimum = m_minDate ? m_minDate() : std::nullopt;
    return minimum ? std::optional(civilDay(*minimum, zone())) : std::nullopt;
}

} // namespace quorvane
