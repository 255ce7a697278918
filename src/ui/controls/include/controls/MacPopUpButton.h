// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PopUpChoice.h>

namespace quorvane {

/// The pop-up button of a form, as wide as its place: chooses the date format in the panel.
class MacPopUpButton final : public PopUpChoice {
    Q_OBJECT

public:
    explicit MacPopUpButton(PopoverEffects effects, QWidget* parent = nullptr)
        : PopUpChoice(std::move(effects), parent) {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
};

} // namespace quorvane
