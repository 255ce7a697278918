// SPDX-License-Identifier: MIT
#include <timezones/ZoneSelection.h>

#include <algorithm>

namespace quorvane {

std::vector<TimeZone> toggledSelection(std::vector<TimeZone> selection, const TimeZone& zone) {
    const auto found = std::ranges::find(selection, zone);
    if (found == selection.end())
        selection.push_back(zone);
    else if (selection.size() > 1)
        selection.erase(found);
    return selection;
}

} // namespace quorvane
