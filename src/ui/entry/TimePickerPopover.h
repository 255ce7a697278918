// SPDX-License-Identifier: MIT
#pragma once

#include "LocalKeyMonitor.h"
#include "NumberField.h"
#include "TimeEntry.h"

#include <controls/Binding.h>
#include <time/CurrentZone.h>

#include <QWidget>

#include <memory>
#include <optional>

namespace quorvane {

class SegmentedChip;

/// Hour, minute, and AM or PM of one date. Whatever is typed goes into the date at once if it is a
/// time, else the date stays. Showing it reads the date, which drops the date's seconds.
class TimePickerPopover final : public QWidget {
    Q_OBJECT

public:
    enum class Field { Hour, Minute };

    TimePickerPopover(
        Binding<Instant> date,
        const CurrentZone& currentZone,
        const PasteReader& pasteReader,
        QWidget* parent = nullptr);

    /// The number field that has the keyboard's focus.
    [[nodiscard]] std::optional<Field> focus() const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] NumberField*
    numberField(const QString& name, const QString& placeholder, const PasteReader& pasteReader);
    [[nodiscard]] NumberField* fieldWidget(Field field) const;
    [[nodiscard]] TimeTexts texts() const;
    void layOut();
    void addShortcuts();
    void load();
    void save();
    void step(int amount);
    void setPM(bool isPM);
    void showPeriod(bool isPM);
    void setFocus(Field field, Qt::FocusReason reason);
    void installKeyMonitor();
    [[nodiscard]] LocalKeyMonitor::Verdict handleKey(std::uint32_t keyCode);

    Binding<Instant> m_date;
    const CurrentZone& m_currentZone;
    NumberField* m_hour;
    NumberField* m_minute;
    SegmentedChip* m_period;
    std::unique_ptr<LocalKeyMonitor> m_keyMonitor;
};

} // namespace quorvane
