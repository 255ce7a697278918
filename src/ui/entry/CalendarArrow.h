// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

namespace quorvane {

/// A bare button that shows the next month of a calendar, or the one before; it points where that
/// lies in the direction of reading.
class CalendarArrow final : public PressableControl {
    Q_OBJECT

public:
    enum class Way { Back, Onward };

    CalendarArrow(Way way, const QString& name, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;

private:
    Way m_way;
};

} // namespace quorvane
