// SPDX-License-Identifier: MIT
#pragma once

#include "Section.h"

#include <controls/Binding.h>
#include <entry/DateField.h>
#include <entry/EntryDependencies.h>
#include <entry/TimeField.h>
#include <model/DateTimeModel.h>

class QHBoxLayout;

namespace quorvane {

class CheckBox;
class TextButton;
class WrappedText;

/// "When": which parts of the date are written, the start, and the end of a range with its length.
/// A button takes back what the user has entered, for the present moment.
class DateSection final : public Section {
    Q_OBJECT

public:
    DateSection(DateTimeModel& model, const EntryDependencies& dependencies, QWidget* parent);

    /// Shows the model, the zone and the day as they are now.
    void refresh();

    /// Gives the focus to the start: its day, or its time where no day is written.
    void focusStart();

    /// The zone that the dates are entered in, shortly.
    [[nodiscard]] QString localTimeZoneLabel() const;

private:
    /// The chips of one date.
    struct DateTimePair {
        QWidget* row;
        DateField* date;
        TimeField* time;
    };

    struct PairNames {
        QString date;
        QString time;
    };

    [[nodiscard]] DateTimePair
    dateTimePair(const Binding<Instant>& selection, const MinDate& minDate, const PairNames& names);
    [[nodiscard]] QHBoxLayout* makeRangeRow();
    void layOut();
    void setTabOrders();
    void connectBoxes();
    void addNow();
    void refresh(const DateTimePair& pair);
    void refreshNow();
    void refreshLength();

    DateTimeModel& m_model;
    EntryDependencies m_dependencies;
    CheckBox* m_includeDate;
    CheckBox* m_includeTime;
    CheckBox* m_isRange;
    WrappedText* m_length;
    TextButton* m_now;
    DateTimePair m_start;
    DateTimePair m_end;
};

} // namespace quorvane
