// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesSection.h"
#include "SwitchRow.h"

namespace quorvane {

class DateTimeModel;

/// Where the program's icon shows. It may show nowhere; a note then says how to come back.
class IconsSection final : public PreferencesSection {
    Q_OBJECT

public:
    /// How far the section extends beyond what it paints, at its lower end.
    static constexpr int overhang = SwitchRow::overhang;

    IconsSection(DateTimeModel& model, QWidget* parent);

    void refresh();

private:
    DateTimeModel& m_model;
    SwitchRow* m_menuBar;
    SwitchRow* m_dock;
    QWidget* m_note;
};

} // namespace quorvane
