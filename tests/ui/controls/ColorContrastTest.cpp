// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

// Ratios by the definition of WCAG 2.1, as published checkers print them.
TEST(ColorContrast, RatioIsThatOfTheGuidelines) {
    struct Row {
        QColor a;
        QColor b;
        double ratio;
    };

    const Row rows[] = {
        {Qt::black, Qt::white, 21.0},
        {Qt::white, Qt::black, 21.0},
        {Qt::white, Qt::white, 1.0},
        {0x777777, Qt::white, 4.48},
        {0x767676, Qt::white, 4.54},
        {0xff0000, Qt::white, 4.00},
        {0x0000ff, Qt::white, 8.59},
        {0xffff00, Qt::white, 1.07},
    };
    for (const auto& row : rows)
        EXPECT_NEAR(contrastRatio(row.a, row.b), row.ratio, 0.005) << row.a.name().toStdString();
}

TEST(ColorContrast, BlendingIsWhatOneSees) {
    EXPECT_EQ(blended(withOpacity(Qt::black, 0.4), Qt::white).name(), QColor(0x999999).name());
    EXPECT_EQ(blended(withOpacity(Qt::red, 0), Qt::blue), QColor(Qt::blue));
    EXPECT_EQ(blended(Qt::red, Qt::blue), QColor(Qt::red));
    EXPECT_EQ(blended(withOpacity(Qt::white, 0.2), Qt::black).name(), QColor(0x333333).name());
}

TEST(ColorContrast, ColorThatIsReadableStays) {
    EXPECT_EQ(pushedToContrast(0x767676, Qt::white, 4.5), QColor(0x767676));
}

TEST(ColorContrast, PushedColorReachesTheRatioAndKeepsItsHue) {
    const QColor colors[] = {0xffff00, 0x3daee9, 0x00ff00, 0xffc0cb, 0x202060};
    const QColor backgrounds[] = {Qt::white, Qt::black, 0xf6f6f8, 0x2a2b2f, 0x777777};
    for (const auto& color : colors) {
        for (const auto& background : backgrounds) {
            // In eight bits, which is what a screen shows.
            const QColor pushed(pushedToContrast(color, background, 4.5).rgb());
            EXPECT_GE(contrastRatio(pushed, background), 4.5)
                << color.name().toStdString() << " on " << background.name().toStdString();
            EXPECT_NEAR(pushed.hslHue(), color.hslHue(), 6); // as near as dark tones come
        }
    }
}

TEST(ColorContrast, ExtremesMoveAwayFromTheirOwnEnd) {
    for (const QColor color : {QColor(Qt::black), QColor(Qt::white)})
        EXPECT_GE(contrastRatio(pushedToContrast(color, color, 4.5), color), 4.5);
}

TEST(ColorContrast, WhereNoLightnessReachesTheRatioTheEndIsTaken) {
    EXPECT_EQ(pushedToContrast(Qt::red, 0x777777, 21), QColor(Qt::black));
    EXPECT_EQ(pushedToContrast(Qt::red, 0x606060, 21), QColor(Qt::white));
}

} // namespace
} // namespace quorvane
