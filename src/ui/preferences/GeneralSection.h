// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesSection.h"
#include "SwitchRow.h"

namespace quorvane {

class DateTimeModel;

/// How the program begins.
class GeneralSection final : public PreferencesSection {
    Q_OBJECT

public:
    /// How far the section extends beyond what it paints, at its lower end.
    static constexpr int overhang = SwitchRow::overhang;

    GeneralSection(DateTimeModel& model, QWidget* parent);

    void refresh();

private:
    void add(SwitchRow* row);

    DateTimeModel& m_model;
    SwitchRow* m_remember;
    int m_below = 0; ///< how far the last row extends beyond what it paints
};

} // namespace quorvane
