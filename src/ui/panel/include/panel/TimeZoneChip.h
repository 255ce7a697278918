// SPDX-License-Identifier: MIT
#pragma once

#include <panel/ZoneChip.h>

namespace quorvane {

/// A selected time zone; pressing it anywhere removes it, as do Delete and Backspace.
class TimeZoneChip final : public ZoneChip {
    Q_OBJECT

public:
    TimeZoneChip(
        const TimeZone& timeZone,
        const QString& label,
        std::function<void()> onRemove,
        QWidget* parent = nullptr);

protected:
    [[nodiscard]] ContentRow content(const Theme& theme) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintControl(QPainter& painter, const Theme& theme) override;
};

} // namespace quorvane
