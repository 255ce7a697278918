// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>
#include <time/MonthGrid.h>

namespace quorvane {

/// One day of a calendar. A refused day can have the keyboard's focus, so that one can look around
/// from it, but cannot be pressed.
class CalendarDay final : public PressableControl {
    Q_OBJECT

public:
    static constexpr int cellSize = 32;

    struct Marks {
        bool isToday = false;
        bool isChosen = false;
        bool isRefused = false;
        bool isTyped = false; ///< the day that is being typed

        friend bool operator==(const Marks&, const Marks&) = default;
    };

    explicit CalendarDay(QWidget* parent);

    /// Becomes another day.
    void setDay(const MonthGridDay& day);

    [[nodiscard]] CivilDay day() const { return m_day; }

    void setMarks(Marks marks);

    [[nodiscard]] Marks marks() const { return m_marks; }

    [[nodiscard]] QSize sizeHint() const override { return {cellSize, cellSize}; }

    [[nodiscard]] FocusOutline focusOutline() const override;

Q_SIGNALS:
    /// Pressed, and not refused.
    void picked(quorvane::CivilDay day);

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void pick();
    [[nodiscard]] QRectF disc() const;
    [[nodiscard]] QColor discColor(const Theme& theme) const;
    [[nodiscard]] QColor foreground(const Theme& theme) const;

    CivilDay m_day;
    Marks m_marks;
};

} // namespace quorvane
