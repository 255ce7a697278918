// SPDX-License-Identifier: MIT
#include <panel/FavoriteSuggestionChip.h>
#include <panel/TimeZoneChip.h>
#include <support/TextFits.h>
#include <time/ZoneDatabase.h>

namespace quorvane {
namespace {

TEST_P(TextFits, InZoneChips) {
    const auto zone = ZoneDatabase::utc();
    const auto medium = font(TextStyle::Callout, QFont::Medium);
    expectRoom(window.add(new TimeZoneChip(zone, label, [] {})), medium, 9 + 5 + 2 * 10);
    expectRoom(window.add(new FavoriteSuggestionChip(zone, label, [] {})), medium, 9 + 5 + 2 * 10);
}

INSTANTIATE_TEST_SUITE_P(BodySizes, TextFits, testing::Values(9, 13, 16));

} // namespace
} // namespace quorvane
