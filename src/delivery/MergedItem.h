// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardContents.h>

#include <vector>

namespace quorvane {

/// All items as one: each type once, at the place of its first occurrence, with its last data.
[[nodiscard]] PasteboardItem mergedItem(const std::vector<PasteboardItem>& items);

} // namespace quorvane
