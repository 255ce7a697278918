// SPDX-License-Identifier: MIT
#pragma once

#include "Section.h"

#include <controls/Choice.h>
#include <controls/PasteReader.h>
#include <controls/PopoverEffects.h>
#include <model/DateTimeModel.h>

namespace quorvane {

class MacPopUpButton;
class MacSegmentedControl;
class PatternEntry;

/// The format of the output: a preset, the user's own pattern, and how several zones stand.
class FormatSection final : public Section {
    Q_OBJECT

public:
    FormatSection(
        DateTimeModel& model,
        const PopoverEffects& effects,
        PasteReader pasteReader,
        QWidget* parent);

    void refresh();

private:
    void layOut();
    void offerPresets();
    [[nodiscard]] QStringList presetSamples() const;
    void enterPatternIfCustom();

    DateTimeModel& m_model;
    MacPopUpButton* m_preset;
    MacSegmentedControl* m_layout;
    Choice<DateFormatPreset> m_presetChoice;
    Choice<MultiZoneLayout> m_layoutChoice;
    PatternEntry* m_pattern; ///< follows the choices in the Tab order
};

} // namespace quorvane
