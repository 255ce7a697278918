// SPDX-License-Identifier: MIT
#pragma once

#include <controls/SegmentedRow.h>

namespace quorvane {

/// The segmented control of a form: as wide as its place.
class MacSegmentedControl final : public SegmentedRow {
    Q_OBJECT

public:
    using SegmentedRow::SegmentedRow;
};

} // namespace quorvane
