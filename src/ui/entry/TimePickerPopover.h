// SPDX-License-Identifier: MIT
#pragma once

#include "HourReader.h"
#include "LocalKeyMonitor.h"
#include "NumberField.h"
#include "TimeEntry.h"

#include <controls/Binding.h>
#include <entry/EntryDependencies.h>

#include <QWidget>

#include <memory>
#include <optional>

namespace quorvane {

class SegmentedChip;
class TextButton;

/// Hour, minute, and where the locale has them AM or PM of one date, and a button for those of this
/// moment. Whatever is typed goes into the date at once if it is a time, else the date stays. A
/// whole time in the hour's field sets both fields. What cannot become a time is framed as refused,
/// what might still when its field is left, where the date's time takes its place. Showing it reads
/// the date, which drops the date's seconds.
class TimePickerPopover final : public QWidget {
    Q_OBJECT

public:
    enum class Field { Hour, Minute };

    TimePickerPopover(
        Binding<Instant> date, const EntryDependencies& dependencies, QWidget* parent = nullptr);

    /// The number field that has the keyboard's focus.
    [[nodiscard]] std::optional<Field> focus() const;

Q_SIGNALS:
    /// Return was pressed on a valid time.
    void finished();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] TimeZone zone() const { return m_dependencies.currentZone.current(); }

    [[nodiscard]] NumberField* numberField(Field field, const QString& name);
    [[nodiscard]] NumberField* fieldWidget(Field field) const;
    [[nodiscard]] TimeTexts texts() const;
    void layOut();
    void addShortcuts();
    void addPeriod();
    void load();
    void save();
    void noteEdit(Field field);
    void takeWholeTime();
    void showTexts(const TimeTexts& texts);
    [[nodiscard]] TypingState stateOf(Field field) const;
    void refuse(Field field);
    void leave(Field field);
    void leavePeriodWord();
    void finish();
    void step(int amount);
    void setPM(bool isPM);
    void takeTimeOfNow();
    void showPeriod(bool isPM);
    void setFocus(Field field, Qt::FocusReason reason);
    void installKeyMonitor();
    [[nodiscard]] LocalKeyMonitor::Verdict handleKey(const QKeyEvent& event);

    Binding<Instant> m_date;
    EntryDependencies m_dependencies;
    HourReader m_hourReader;
    NumberField* m_hour;
    NumberField* m_minute;
    SegmentedChip* m_period = nullptr; ///< none where hours are counted to 23
    TextButton* m_now;
    std::unique_ptr<LocalKeyMonitor> m_keyMonitor;
};

} // namespace quorvane
