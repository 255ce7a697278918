// SPDX-License-Identifier: MIT
#include <panel/FavoriteSuggestionChip.h>
#include <panel/TimeZoneChip.h>
#include <support/Pixels.h>
#include <time/ZoneDatabase.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST_P(Pixels, HalfPointLineIsOneDevicePixel) {
    FavoriteSuggestionChip chip(ZoneDatabase::utc(), u"PST"_s, [] {});
    const auto image = render(chip, {120, 30});
    const int middle = image.width() / 2;
    const auto line = blended(withOpacity(theme.secondaryText, 0.3), theme.windowBackground);
    expectColor(image.pixel(middle, 0), line, "line");
    expectColor(image.pixel(middle, 1), theme.windowBackground, "no fill");
    expectColor(image.pixel(middle, image.height() - 1), line, "lower line");
}

TEST_P(Pixels, ChosenZoneIsTinted) {
    TimeZoneChip chip(ZoneDatabase::utc(), u"PST"_s, [] {});
    const auto image = render(chip, {120, 30});
    const auto tint = blended(withOpacity(theme.accentText, 0.12), theme.windowBackground);
    const auto line = blended(withOpacity(theme.accentText, 0.25), tint);
    expectColor(image.pixel(image.width() / 2, 0), line, "line");
    expectColor(image.pixel(image.width() / 2, 2), tint, "tint");
}

INSTANTIATE_TEST_SUITE_P(
    SchemesAndScales,
    Pixels,
    testing::Combine(
        testing::Values(ColorScheme::Light, ColorScheme::Dark), testing::Values(1.0, 1.25, 2.0)));

} // namespace
} // namespace quorvane
