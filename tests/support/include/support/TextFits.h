// SPDX-License-Identifier: MIT
#pragma once

#include <controls/TextStyle.h>
#include <support/ControlWindow.h>

#include <QFontMetricsF>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorvane {

/// By size of the body's font in pixels.
class TextFits : public testing::TestWithParam<int> {
protected:
    ControlWindow window;
    QString label = QStringLiteral("Wednesday, Preferences…");

    TextFits() {
        auto font = window.font();
        font.setPixelSize(GetParam());
        window.setFont(font);
    }

    /// What stands beside text of 13 pixels and grows and shrinks with it, but not below 3/4.
    static int beside(double points) { return qRound(points * std::max(GetParam() / 13.0, 0.75)); }

    /// What the design gives the label, beside which `ornament` points are taken by other things.
    void expectRoom(const QWidget& control, const QFont& font, double ornament) {
        const QFontMetricsF metrics(font);
        const auto size = control.sizeHint();
        EXPECT_GE(size.width() - ornament, metrics.horizontalAdvance(label));
        EXPECT_GE(size.height(), metrics.height());
        EXPECT_LE(size.width() - ornament, metrics.horizontalAdvance(label) + 16);
    }

    [[nodiscard]] QFont font(TextStyle style, QFont::Weight weight = QFont::Normal) const {
        return textFont(window.font(), style, weight);
    }
};

} // namespace quorvane
