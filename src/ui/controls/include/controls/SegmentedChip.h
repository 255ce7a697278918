// SPDX-License-Identifier: MIT
#pragma once

#include <controls/SegmentedRow.h>

namespace quorvane {

/// A row of mutually exclusive segments drawn as a chip.
class SegmentedChip final : public SegmentedRow {
    Q_OBJECT

public:
    using SegmentedRow::SegmentedRow;
};

} // namespace quorvane
