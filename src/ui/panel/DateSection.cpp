// SPDX-License-Identifier: MIT
#include "DateSection.h"

#include "SectionLabel.h"

#include <composition/IncludeGuard.h>
#include <composition/RangeLength.h>
#include <controls/CheckBox.h>
#include <controls/TextButton.h>
#include <controls/WrappedText.h>
#include <panel/PanelMetrics.h>
#include <timezones/ZoneTexts.h>

#include <QHBoxLayout>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int boxSpacing = 16;
constexpr int rowSpacing = 4;
constexpr int rangeBoxPadding = 2;
constexpr int lengthGap = 8;

void tick(CheckBox* box, bool isChecked) {
    const QSignalBlocker blocker(box);
    box->setChecked(isChecked);
    box->update();
}

} // namespace

DateSection::DateSection(
    DateTimeModel& model, const EntryDependencies& dependencies, QWidget* parent)
    : Section(tr("When"), Symbol::Calendar, parent),
      m_model(model),
      m_dependencies(dependencies),
      m_includeDate(new CheckBox(tr("Date"), this)),
      m_includeTime(new CheckBox(tr("Time"), this)),
      m_isRange(new CheckBox(tr("to"), this)),
      m_length(new WrappedText({}, TextStyle::Callout, WrappedText::Color::Secondary, this)),
      m_now(new TextButton(tr("Now"), this)),
      m_start(dateTimePair(
          {[&model] { return model.startDate(); },
           [&model](Instant instant) {
               model.setStartDate(instant);
           }},
          {},
          {tr("Start date"), tr("Start time")})),
      m_end(dateTimePair(
          {[&model] { return model.endDate(); },
           [&model](Instant instant) {
               model.setEndDate(instant);
           }},
          [&model] { return std::optional(model.startDate()); },
          {tr("End date"), tr("End time")})) {
    layOut();
    connectBoxes();
    addNow();
}

void DateSection::refresh() {
    const auto guard = IncludeGuard::of(m_model.includeDate(), m_model.includeTime());
    label().setNote(tr("(in local time %1)").arg(localTimeZoneLabel()));
    tick(m_includeDate, m_model.includeDate());
    tick(m_includeTime, m_model.includeTime());
    tick(m_isRange, m_model.isRange());
    m_includeDate->setEnabled(guard.dateEnabled);
    m_includeTime->setEnabled(guard.timeEnabled);
    refresh(m_start);
    if (m_model.isRange())
        refresh(m_end);
    m_end.row->setVisible(m_model.isRange());
    refreshNow();
    refreshLength();
}

void DateSection::focusStart() {
    FieldChip* start = m_start.date;
    if (!m_model.includeDate())
        start = m_start.time;
    start->setFocus(Qt::OtherFocusReason);
}

QString DateSection::localTimeZoneLabel() const {
    return zoneLabel(
        m_dependencies.currentZone.current(), m_dependencies.clock.now(), m_dependencies.locale);
}

DateSection::DateTimePair DateSection::dateTimePair(
    const Binding<Instant>& selection, const MinDate& minDate, const PairNames& names) {
    DateTimePair pair{
        new QWidget(this),
        new DateField(selection, minDate, m_dependencies),
        new TimeField(selection, minDate, m_dependencies)};
    pair.date->setAccessibleDescription(names.date);
    pair.time->setAccessibleDescription(names.time);
    auto* row = new QHBoxLayout(pair.row);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(panelmetrics::chipSpacing);
    row->addWidget(pair.date);
    row->addWidget(pair.time);
    row->addStretch();
    return pair;
}

void DateSection::layOut() {
    auto* parts = new QWidget(this);
    auto* partsRow = new QHBoxLayout(parts);
    partsRow->setContentsMargins(0, 0, 0, 0);
    partsRow->setSpacing(boxSpacing);
    partsRow->addWidget(m_includeDate);
    partsRow->addWidget(m_includeTime);
    label().addTrailing(parts);
    m_start.row->layout()->addWidget(m_now);
    body().setSpacing(rowSpacing);
    body().addWidget(m_start.row);
    body().addLayout(makeRangeRow());
    body().addWidget(m_end.row);
    setTabOrders();
}

QHBoxLayout* DateSection::makeRangeRow() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(rangeBoxPadding, 0, rangeBoxPadding, 0);
    row->setSpacing(lengthGap);
    row->addWidget(m_isRange);
    row->addWidget(m_length, 1, Qt::AlignVCenter);
    row->addStretch();
    return row;
}

/// In the order in which one reads.
void DateSection::setTabOrders() {
    setTabOrder(m_includeDate, m_includeTime);
    setTabOrder(m_includeTime, m_start.date);
    setTabOrder(m_start.date, m_start.time);
    setTabOrder(m_start.time, m_now);
    setTabOrder(m_now, m_isRange);
    setTabOrder(m_isRange, m_end.date);
    setTabOrder(m_end.date, m_end.time);
}

void DateSection::connectBoxes() {
    connect(m_includeDate, &CheckBox::toggled, this, [this](bool include) {
        m_model.setIncludeDate(include);
        m_model.reconcileFormatPreset();
    });
    connect(m_includeTime, &CheckBox::toggled, this, [this](bool include) {
        m_model.setIncludeTime(include);
        m_model.reconcileFormatPreset();
    });
    connect(m_isRange, &CheckBox::toggled, &m_model, &DateTimeModel::setIsRange);
}

void DateSection::addNow() {
    m_now->setToolTip(tr("Return to the present moment (Alt+N)"));
    m_now->setAccessibleDescription(m_now->toolTip());
    auto* shortcut = new QShortcut(Qt::ALT | Qt::Key_N, this);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, &m_model, &DateTimeModel::returnToNow);
    connect(m_now, &TextButton::clicked, &m_model, &DateTimeModel::returnToNow);
}

void DateSection::refresh(const DateTimePair& pair) {
    // What does not show is refreshed when it does: ICU takes its time over a chip's text.
    if (m_model.includeDate())
        pair.date->refresh();
    if (m_model.includeTime())
        pair.time->refresh();
    pair.date->setVisible(m_model.includeDate());
    pair.time->setVisible(m_model.includeTime());
}

void DateSection::refreshNow() {
    const bool hadFocus = m_now->hasFocus();
    m_now->setVisible(m_model.hasEnteredDate());
    if (hadFocus && !m_model.hasEnteredDate())
        focusStart();
}

void DateSection::refreshLength() {
    m_length->setVisible(m_model.isRange());
    m_isRange->setAccessibleDescription({});
    if (!m_model.isRange())
        return;
    const auto measure = m_model.includeTime() ? RangeLength::between : RangeLength::daysBetween;
    const auto length =
        measure(m_model.startDate(), m_model.endDate(), m_dependencies.currentZone.current());
    const auto text = length.text(m_dependencies.locale);
    // Numbers and units would otherwise be put in the order of the writing around them.
    m_length->setText(layoutDirection() == Qt::RightToLeft ? u"\u2068%1\u2069"_s.arg(text) : text);
    m_length->setAccessibleName(length.words(m_dependencies.locale));
    m_isRange->setAccessibleDescription(m_length->accessibleName());
}

} // namespace quorvane
