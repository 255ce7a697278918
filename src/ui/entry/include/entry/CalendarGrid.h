// SPDX-License-Identifier: MIT
#pragma once

#include <entry/CalendarDay.h>
#include <time/MonthGrid.h>

#include <QWidget>

#include <optional>
#include <vector>

namespace quorvane {

/// The days of one month under the names of the weekdays.
class CalendarGrid final : public QWidget {
    Q_OBJECT

public:
    struct Marks {
        CivilDay today;
        CivilDay chosen;
        std::optional<CivilDay> earliest;   ///< days before it are refused
        std::optional<CivilDay> typed = {}; ///< the day that is being typed
    };

    explicit CalendarGrid(QWidget* parent);

    /// `cursor`, a day of the month, is the one that Tab leads to.
    void showMonth(const MonthGrid& month, CivilDay cursor);

    void mark(const Marks& marks);

    /// Filters the events of all days, now and later; it must live as long.
    void setDayFilter(QObject& filter);

    /// Null for a day of another month.
    [[nodiscard]] CalendarDay* dayAt(CivilDay day) const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void picked(quorvane::CivilDay day);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setDayCount(std::size_t count);
    void replaceFocused(CivilDay cursor);
    void placeDays();
    [[nodiscard]] int columnLeft(int column) const;

    MonthGrid m_month;
    QObject* m_dayFilter = nullptr;
    std::vector<CalendarDay*> m_days; ///< as many as the month has, and then the spare ones
};

} // namespace quorvane
