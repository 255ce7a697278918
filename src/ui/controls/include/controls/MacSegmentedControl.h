// SPDX-License-Identifier: MIT
#pragma once

#include <controls/SegmentedRow.h>

namespace quorvane {

/// The segmented control of a form, as wide as its place: chooses the layout in the panel. A type
/// of its own so that it can be told from a row of chips.
class MacSegmentedControl final : public SegmentedRow {
    Q_OBJECT

public:
    using SegmentedRow::SegmentedRow;
};

} // namespace quorvane
