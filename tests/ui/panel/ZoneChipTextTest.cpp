// SPDX-License-Identifier: MIT
#include <panel/FavoriteSuggestionChip.h>
#include <panel/TimeZoneChip.h>
#include <support/TextFits.h>
#include <time/ZoneDatabase.h>

#include <map>

namespace quorvane {
namespace {

TEST_P(TextFits, InZoneChips) {
    const auto zone = ZoneDatabase::utc();
    const auto medium = font(TextStyle::Callout, QFont::Medium);
    // The mark of 9 points goes with the text.
    const int mark = std::map<int, int>{{9, 7}, {13, 9}, {16, 11}}.at(GetParam());
    const int ornament = mark + 5 + 2 * 10;
    expectRoom(window.add(new TimeZoneChip(zone, label, [] {})), medium, ornament);
    expectRoom(window.add(new FavoriteSuggestionChip(zone, label, [] {})), medium, ornament);
}

INSTANTIATE_TEST_SUITE_P(BodySizes, TextFits, testing::Values(9, 13, 16));

} // namespace
} // namespace quorvane
