// SPDX-License-Identifier: MIT
#pragma once

#include "Section.h"
#include "ZoneChipFocus.h"

#include <controls/FlowLayout.h>
#include <model/DateTimeModel.h>
#include <picker/TimeZonePickerView.h>

#include <QPointer>

#include <vector>

namespace quorvane {

class IconButton;
class Sheet;
class ZoneChip;

/// The zones of the output as chips: favourites in their place, selected or offered, then whatever
/// else is selected; and the way to all other zones.
class TimeZoneSection final : public Section {
    Q_OBJECT

public:
    TimeZoneSection(
        DateTimeModel& model,
        const TimeZonePickerView::Dependencies& dependencies,
        QWidget* parent);

    /// Shows the model's zones, with the labels that they have now. Chips that stay keep their
    /// place, the pointer and the focus.
    void refresh();

    /// Opens the picker over the window.
    void showTimeZonePicker();

    /// Whether the picker is open, also while the window itself is hidden.
    [[nodiscard]] bool isPicking() const;

private:
    /// What a chip shows.
    struct Slot {
        TimeZone zone;
        QString label;
        bool isSelected;
    };

    [[nodiscard]] std::vector<Slot> slotsOfModel() const;
    [[nodiscard]] bool isSelected(const TimeZone& zone) const;
    void layOutChips();
    /// The focus stays at the place of a chip that has gone; after the last one it is where one
    /// adds a zone.
    void moveFocusFrom(const std::vector<ZoneChip*>& before);
    [[nodiscard]] ZoneChip* takeOrMakeChip(const Slot& slot);
    [[nodiscard]] ZoneChip* makeChip(const Slot& slot);
    void add(const TimeZone& zone);
    void remove(const TimeZone& zone);

    DateTimeModel& m_model;
    TimeZonePickerView::Dependencies m_dependencies;
    IconButton* m_add;
    FlowLayout* m_flow;
    std::vector<ZoneChip*> m_chips;
    ZoneChipFocus m_focus;
    QPointer<Sheet> m_picker;
};

} // namespace quorvane
