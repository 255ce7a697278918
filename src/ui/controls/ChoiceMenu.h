// SPDX-License-Identifier: MIT
#pragma once

#include "RowMenu.h"

#include <QStringList>

namespace quorvane {

/// A list of titles to choose one from.
class ChoiceMenu final : public RowMenu {
    Q_OBJECT

public:
    /// The keyboard starts at the selected title, without one at the first.
    ChoiceMenu(const QStringList& titles, std::optional<int> selected, QWidget* parent = nullptr);
};

} // namespace quorvane
