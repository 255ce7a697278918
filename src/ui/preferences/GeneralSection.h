// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencesSection.h"
#include "SwitchRow.h"

namespace quorvane {

class Autostart;
class DateTimeModel;
class WrappedText;

/// How the program begins.
class GeneralSection final : public PreferencesSection {
    Q_OBJECT

public:
    /// How far the section extends beyond what it paints, at its lower end.
    static constexpr int overhang = SwitchRow::overhang;

    /// Both must outlive the section.
    GeneralSection(DateTimeModel& model, Autostart& autostart, QWidget* parent);
    ~GeneralSection() override;

    void refresh();

private:
    void add(SwitchRow* row);
    [[nodiscard]] QString loginCaption() const;
    void sayOfLogin(const QString& caption);

    DateTimeModel& m_model;
    Autostart& m_autostart;
    SwitchRow* m_startAtLogin;   ///< null where that cannot be decided here
    WrappedText* m_loginCaption; ///< shows while there is something to say of it
    SwitchRow* m_remember;
    int m_below = 0; ///< how far the last row extends beyond what it paints
};

} // namespace quorvane
