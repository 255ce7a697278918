// SPDX-License-Identifier: MIT
#pragma once

#include <controls/ContentRow.h>
#include <controls/PressableControl.h>
#include <time/TimeZone.h>

#include <functional>

namespace quorvane {

/// A capsule that stands for a time zone and does one thing when it is pressed.
class ZoneChip : public PressableControl {
    Q_OBJECT

public:
    /// `label` names the zone shortly (see timezones/ZoneTexts.h); it changes with the seasons.
    ZoneChip(
        const TimeZone& timeZone,
        const QString& label,
        std::function<void()> onPress,
        QWidget* parent);

    [[nodiscard]] const TimeZone& timeZone() const { return m_timeZone; }

    void setLabel(const QString& label);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] double cornerRadius() const override;
    [[nodiscard]] virtual ContentRow content(const Theme& theme) const = 0;
    [[nodiscard]] QFont labelFont() const;

private:
    TimeZone m_timeZone;
};

} // namespace quorvane
