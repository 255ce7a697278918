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
    [[nodiscard]] const TimeZone& timeZone() const { return m_timeZone; }

    /// What names the zone shortly, and its place and offset in full, which tooltip and description
    /// say (see timezones/ZoneTexts.h). Both change with the seasons.
    void setTexts(const QString& label, const QString& place);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    struct Press {
        QString name; ///< what it does, as one reads it
        std::function<void()> run;
    };

    ZoneChip(const TimeZone& timeZone, const QString& label, Press press, QWidget* parent);

    [[nodiscard]] double cornerRadius() const override;
    [[nodiscard]] virtual ContentRow content(const Theme& theme) const = 0;
    [[nodiscard]] QFont labelFont() const;

private:
    TimeZone m_timeZone;
    QString m_pressName;
};

} // namespace quorvane
