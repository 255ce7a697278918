// SPDX-License-Identifier: MIT
#pragma once

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

/// Hour, minute, and AM or PM of one date, and a button for those of this moment. Whatever is typed
/// goes into the date at once if it is a time, else the date stays. Showing it reads the date,
/// which drops the date's seconds.
class TimePickerPopover final : public QWidget {
    Q_OBJECT

public:
    enum class Field { Hour, Minute };

    TimePickerPopover(
        Binding<Instant> date, const EntryDependencies& dependencies, QWidget* parent = nullptr);

    /// The number field that has the keyboard's focus.
    [[nodiscard]] std::optional<Field> focus() const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] TimeZone zone() const { return m_dependencies.currentZone.current(); }

    [[nodiscard]] NumberField* numberField(const QString& name, const QString& placeholder);
    [[nodiscard]] NumberField* fieldWidget(Field field) const;
    [[nodiscard]] TimeTexts texts() const;
    void layOut();
    void addShortcuts();
    void load();
    void save();
    void step(int amount);
    void setPM(bool isPM);
    void takeTimeOfNow();
    void showPeriod(bool isPM);
    void setFocus(Field field, Qt::FocusReason reason);
    void installKeyMonitor();
    [[nodiscard]] LocalKeyMonitor::Verdict handleKey(std::uint32_t keyCode);

    Binding<Instant> m_date;
    EntryDependencies m_dependencies;
    NumberField* m_hour;
    NumberField* m_minute;
    SegmentedChip* m_period;
    TextButton* m_now;
    std::unique_ptr<LocalKeyMonitor> m_keyMonitor;
};

} // namespace quorvane
