// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>
#include <controls/KeyCap.h>
#include <controls/SegmentedChip.h>
#include <support/Pixels.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class ControlMeasures : public Pixels {};

TEST_P(ControlMeasures, SegmentIsTwentySixHighAndTwoInsideItsShare) {
    SegmentedChip row;
    row.setChoices({u"A"_s, u"B"_s}, 1);
    const auto image = render(row, {160, 30});
    const auto tint = blended(withOpacity(theme.accentText, 0.15), theme.controlBackground);
    const auto expectAt = [&](double x, double y, const QColor& color, const char* what) {
        expectColor(
            image.pixel(static_cast<int>(x * scale), static_cast<int>(y * scale)), color, what);
    };
    // The share of the second segment is from 80 to 160; letters stand in its middle.
    expectAt(100, 1, theme.controlBackground, "above");
    expectAt(100, 2, tint, "top");
    expectAt(100, 27, tint, "bottom");
    expectAt(100, 28, theme.controlBackground, "below");
    expectAt(81, 15, theme.controlBackground, "before");
    expectAt(82, 15, tint, "start");
    expectAt(157, 15, tint, "end");
    expectAt(158, 15, theme.controlBackground, "behind");
}

TEST_P(ControlMeasures, KeyCapThrowsAHardShadowOfHalfAPoint) {
    KeyCap cap(u"D"_s);
    const auto image = render(cap, {22, 22});
    // Half a point is one device pixel at one and two of them a point.
    const int last = image.height() - 1;
    const int middle = image.width() / 2;
    const auto edge = blended(QColor(0, 0, 0, 46), theme.controlBackground); // 18 %
    expectColor(
        image.pixel(middle, last),
        blended(QColor(0, 0, 0, 31), theme.windowBackground), // 12 %
        "shadow");
    expectColor(image.pixel(middle, last - 1), edge, "frame");
    expectColor(image.pixel(middle, last - 2), theme.controlBackground, "fill");
}

INSTANTIATE_TEST_SUITE_P(
    SchemesAndScales,
    ControlMeasures,
    testing::Combine(
        testing::Values(ColorScheme::Light, ColorScheme::Dark), testing::Values(1.0, 2.0)));

} // namespace
} // namespace quorvane
