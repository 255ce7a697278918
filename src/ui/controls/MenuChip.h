// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PopUpChoice.h>

namespace quorvane {

/// A chip, as wide as its titles need, that opens a list to choose from.
class MenuChip final : public PopUpChoice {
    Q_OBJECT

public:
    explicit MenuChip(PopoverEffects effects, QWidget* parent = nullptr)
        : PopUpChoice(std::move(effects), parent) {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
};

} // namespace quorvane
