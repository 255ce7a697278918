// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PopUpChoice.h>

namespace quorvane {

/// The pop-up of the chips: as wide as its titles need, where MacPopUpButton fills its place. For a
/// choice between other chips; no view shows one at present.
class MenuChip final : public PopUpChoice {
    Q_OBJECT

public:
    explicit MenuChip(PopoverEffects effects, QWidget* parent = nullptr)
        : PopUpChoice(std::move(effects), parent) {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
};

} // namespace quorvane
