// SPDX-License-Identifier: MIT
#pragma once

#include <controls/ColorContrast.h>
#include <support/ControlWindow.h>

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace quorvane {

/// By scheme and device pixels a point.
class Pixels : public testing::TestWithParam<std::tuple<ColorScheme, double>> {
protected:
    ColorScheme scheme = std::get<0>(GetParam());
    double scale = std::get<1>(GetParam());
    const Theme& theme = Theme::builtIn(scheme);
    ControlWindow window{scheme};

    /// What a 1 point frame takes: whole device pixels.
    [[nodiscard]] int frame() const { return static_cast<int>(std::round(scale)); }

    static void expectColor(QRgb pixel, const QColor& color, const char* what) {
        const QRgb expected = color.rgb();
        EXPECT_NEAR(qRed(pixel), qRed(expected), 2) << what;
        EXPECT_NEAR(qGreen(pixel), qGreen(expected), 2) << what;
        EXPECT_NEAR(qBlue(pixel), qBlue(expected), 2) << what;
    }

    QImage render(QWidget& control, QSize size) {
        window.layout()->addWidget(&control);
        control.setFixedSize(size);
        return picture(control, scale);
    }
};

} // namespace quorvane
