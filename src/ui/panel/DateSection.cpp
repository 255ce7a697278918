// SPDX-License-Identifier: MIT
#include "DateSection.h"

#include "SectionLabel.h"

#include <composition/IncludeGuard.h>
#include <controls/CheckBox.h>
#include <panel/PanelMetrics.h>
#include <timezones/ZoneTexts.h>

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace quorvane {

namespace {

constexpr int boxSpacing = 16;
constexpr int rowSpacing = 4;
constexpr int rangeBoxPadding = 2;

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
        new TimeField(selection, m_dependencies)};
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
    auto* range = new QHBoxLayout;
    range->setContentsMargins(rangeBoxPadding, 0, rangeBoxPadding, 0);
    range->addWidget(m_isRange);
    range->addStretch();
    body().setSpacing(rowSpacing);
    body().addWidget(m_start.row);
    body().addLayout(range);
    body().addWidget(m_end.row);
    // In the order in which one reads.
    setTabOrder(m_includeDate, m_includeTime);
    setTabOrder(m_includeTime, m_start.date);
    setTabOrder(m_start.date, m_start.time);
    setTabOrder(m_start.time, m_isRange);
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

void DateSection::refresh(const DateTimePair& pair) {
    // What does not show is refreshed when it does: ICU takes its time over a chip's text.
    if (m_model.includeDate())
        pair.date->refresh();
    if (m_model.includeTime())
        pair.time->refresh();
    pair.date->setVisible(m_model.includeDate());
    pair.time->setVisible(m_model.includeTime());
}

} // namespace quorvane
