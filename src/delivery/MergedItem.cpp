// SPDX-License-Identifier: MIT
#include "MergedItem.h"

#include <algorithm>

namespace quorvane {

namespace {

void put(PasteboardItem& item, const PasteboardEntry& entry) {
    const auto known = std::ranges::find(item, entry.type, &PasteboardEntry::type);
    if (known == item.end())
        item.push_back(entry);
    else
        *known = entry;
}

} // namespace

PasteboardItem mergedItem(const std::vector<PasteboardItem>& items) {
    PasteboardItem merged;
    for (const auto& item : items) {
        for (const auto& entry : item)
            put(merged, entry);
    }
    return merged;
}

} // namespace quorvane
