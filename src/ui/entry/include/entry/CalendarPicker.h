// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <entry/CalendarGrid.h>
#include <entry/EntryDependencies.h>
#include <time/CivilTime.h>
#include <time/TypedDate.h>

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QHBoxLayout;
class QLabel;

namespace quorvane {

class ComposedInput;
class DateLine;
class TextButton;
class TypedDateReader;

/// The earliest instant whose day may be chosen; asked whenever it matters. Absent, or none: any.
using MinDate = std::function<std::optional<Instant>()>;

/// A calendar to choose a date's day from, one month at a time, in the locale's own calendar. Each
/// choice goes into the date at once and leaves its time of day; turning pages changes nothing.
///
/// A date can be typed as well, perhaps with a time of day: a line opens above the days, which
/// follow it, and Return takes what it says. It is refused with a frame if it is no date, or one
/// before the minimum; then nothing changes.
class CalendarPicker final : public QWidget {
    Q_OBJECT

public:
    CalendarPicker(
        Binding<Instant> date,
        MinDate minDate,
        const EntryDependencies& dependencies,
        QWidget* parent = nullptr);
    ~CalendarPicker() override;

    /// Shows date, minimum, zone and today as they are now. The page turns only if the date's day
    /// is another.
    void refresh();

Q_SIGNALS:
    /// Return has taken a day.
    void finished();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut();
    [[nodiscard]] QHBoxLayout* makeHeader();
    void turnPage(int months);
    void pick(CivilDay day);
    void showCursor(CivilDay day);
    void moveCursor(CivilDay day);
    [[nodiscard]] CivilDay cursor() const;
    void finish();
    void openLine();
    void beginTyping(const QKeyEvent& event);
    void closeLine();
    void leaveLine();
    void noteLeft();
    void followTyping();
    void takeTyped();
    [[nodiscard]] TypedDate typedDate();
    [[nodiscard]] std::optional<Instant> typedInstantOf(const TypedDate& date) const;
    [[nodiscard]] bool isAllowed(CivilDay day) const;
    [[nodiscard]] QString refusalOf(const TypedDate& date) const;
    void mark();
    void followFont();

    [[nodiscard]] TimeZone zone() const { return m_dependencies.currentZone.current(); }

    [[nodiscard]] CivilDay today() const { return civilDay(m_dependencies.clock.now(), zone()); }

    [[nodiscard]] CivilDay chosenDay() const { return civilDay(m_date.get(), zone()); }

    [[nodiscard]] std::optional<CivilDay> earliestDay() const;

    Binding<Instant> m_date;
    MinDate m_minDate;
    EntryDependencies m_dependencies;
    QLabel* m_title;
    CalendarGrid* m_grid;
    TextButton* m_today;
    DateLine* m_line;
    std::unique_ptr<ComposedInput> m_composedInput;
    std::unique_ptr<TypedDateReader> m_reader; ///< made with the first letter
    std::optional<CivilDay> m_chosen;          ///< as last shown
    CivilDay m_cursor;                         ///< where the keyboard is; its month is the page
    std::optional<CivilDay> m_typed;           ///< what the line says, if it is a day
};

} // namespace quorvane
