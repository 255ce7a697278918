// SPDX-License-Identifier: MIT
#pragma once

#include "RowMenu.h"

#include <controls/Command.h>

namespace quorvane {

/// A list of commands; what is chosen is the receiver's to run.
class CommandMenu final : public RowMenu {
    Q_OBJECT

public:
    explicit CommandMenu(const std::vector<Command>& commands, QWidget* parent = nullptr);
};

} // namespace quorvane
