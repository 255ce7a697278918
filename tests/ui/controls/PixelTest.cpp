// SPDX-License-Identifier: MIT
#include "MenuChip.h"

#include <controls/ActionButton.h>
#include <controls/CheckBox.h>
#include <controls/ColorContrast.h>
#include <controls/DevicePixels.h>
#include <controls/SegmentedChip.h>
#include <support/Pixels.h>

#include <QPainter>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST_P(Pixels, ChipIsThirtyHighAndItsFrameOnePoint) {
    MenuChip chip{PopoverEffects{}};
    chip.setChoices({u"Long"_s}, 0);
    const auto image = render(chip, {200, 30});
    EXPECT_EQ(image.height(), std::round(30 * scale));
    const int middle = static_cast<int>(150 * scale);
    const auto edge = blended(theme.border, theme.controlBackground);
    for (int y = 0; y < frame(); ++y) {
        expectColor(image.pixel(middle, y), edge, "upper frame");
        expectColor(image.pixel(middle, image.height() - 1 - y), edge, "lower frame");
    }
    expectColor(image.pixel(middle, frame()), theme.controlBackground, "fill");
    const int half = image.height() / 2;
    for (int x = 0; x < frame(); ++x) {
        expectColor(image.pixel(x, half), edge, "left frame");
        expectColor(image.pixel(image.width() - 1 - x, half), edge, "right frame");
    }
    expectColor(image.pixel(frame(), half), theme.controlBackground, "fill beside the frame");
    expectColor(image.pixel(0, 0), theme.windowBackground, "corner");
}

TEST_P(Pixels, ProminentButtonIsTheAccent) {
    ActionButton insert(ActionButton::Prominence::Prominent, Symbol::Return, u"Insert"_s);
    const auto image = render(insert, {220, 34});
    expectColor(image.pixel(image.width() / 2, 0), theme.accent, "fill");
    expectColor(image.pixel(image.width() - 1, image.height() / 2), theme.accent, "fill");
}

TEST_P(Pixels, CheckedBoxIsTheAccentAndAnEmptyOneOutlined) {
    CheckBox box(u"Time"_s);
    auto image = render(box, {80, 24});
    const auto pixel = [&](double x, double y) {
        return image.pixel(static_cast<int>(x * scale), static_cast<int>(y * scale));
    };
    expectColor(pixel(8, 12), theme.controlBackground, "empty");
    expectColor(pixel(0, 12), theme.checkBoxBorder, "outline");
    box.setChecked(true);
    image = picture(box, scale);
    expectColor(pixel(2, 8), theme.accent, "checked");
}

TEST_P(Pixels, ChosenSegmentIsTinted) {
    SegmentedChip row;
    row.setChoices({u"A"_s, u"B"_s}, 1);
    const auto image = render(row, {160, 30});
    const auto at = [&](double x, double y) {
        return image.pixel(static_cast<int>(x * scale), static_cast<int>(y * scale));
    };
    expectColor(
        at(150, 15),
        blended(withOpacity(theme.accentText, 0.15), theme.controlBackground),
        "chosen");
    expectColor(at(10, 15), theme.controlBackground, "other");
}

INSTANTIATE_TEST_SUITE_P(
    SchemesAndScales,
    Pixels,
    testing::Combine(
        testing::Values(ColorScheme::Light, ColorScheme::Dark), testing::Values(1.0, 1.25, 2.0)));

TEST(DevicePixels, LinesAreWholeDevicePixelsAndAtLeastOne) {
    struct Row {
        double scale;
        double points;
        double pixels;
    };

    for (const auto& [scale, points, pixels] :
         {Row{1, 0.5, 1},
          Row{1, 1, 1},
          Row{1.25, 0.5, 1},
          Row{1.25, 1, 1},
          Row{1.5, 1, 2},
          Row{2, 0.5, 1},
          Row{2, 1, 2},
          Row{2, 2, 4}}) {
        QImage image(10, 10, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        const QPainter painter(&image);
        EXPECT_DOUBLE_EQ(snappedLine(painter, points) * scale, pixels) << scale << ' ' << points;
    }
}

TEST(DevicePixels, RectanglesGoToTheNearestPixels) {
    QImage image(20, 20, QImage::Format_RGB32);
    image.setDevicePixelRatio(1.25);
    const QPainter painter(&image);
    const auto rect = snapped(painter, QRectF(1, 1, 5, 5)); // 1.25 to 7.5 in device pixels
    EXPECT_DOUBLE_EQ(rect.left() * 1.25, 1);
    EXPECT_DOUBLE_EQ(rect.right() * 1.25, 8);
}

} // namespace
} // namespace quorvane
