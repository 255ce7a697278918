// SPDX-License-Identifier: MIT
#include "PanelPlacement.h"

#include <panel/PanelMetrics.h>

#include <gtest/gtest.h>

namespace quorvane::panelplacement {
namespace {

using panelmetrics::width;

TEST(PanelPlacement, PanelIsAsWideAsDesigned) {
    EXPECT_EQ(width, 504);
}

TEST(PanelPlacement, HeightIsAtLeastTheMinimum) {
    EXPECT_EQ(contentHeight(0), 300);
    EXPECT_EQ(contentHeight(299), 300);
    EXPECT_EQ(contentHeight(300), 300);
    EXPECT_EQ(contentHeight(301), 301);
}

TEST(PanelPlacement, CentredLeavesTheSameSpaceOnBothSides) {
    EXPECT_EQ(centred({width, 400}, {0, 0, width + 1000, 1000}), QRect(500, 300, width, 400));
    EXPECT_EQ(centred({width, 400}, {1000, 50, width + 1000, 1000}), QRect(1500, 350, width, 400));
}

TEST(PanelPlacement, CentredOnATooSmallScreenShowsTheTopLeft) {
    EXPECT_EQ(centred({width, 400}, {10, 20, 300, 200}), QRect(10, 20, width, 400));
}

TEST(PanelPlacement, OnlyAHeightOfTheUsersIsStored) {
    EXPECT_EQ(stored({30, 40}, 555).topLeft(), QPoint(30, 40));
    for (const int height : {300, 301, 555})
        EXPECT_EQ(storedHeight(stored({30, 40}, height)), height);
    EXPECT_EQ(storedHeight(stored({30, 40}, std::nullopt)), std::nullopt);
}

TEST(PanelPlacement, OnePixelOnAnyScreenIsEnough) {
    const std::vector<QRect> screens{{0, 0, 800, 600}, {800, 0, 800, 600}};
    EXPECT_TRUE(touchesAny({1599, 599, width, 400}, screens));
    EXPECT_FALSE(touchesAny({1600, 0, width, 400}, screens));
    EXPECT_FALSE(touchesAny({-width, 0, width, 400}, screens));
    EXPECT_TRUE(touchesAny({1 - width, 0, width, 400}, screens));
    EXPECT_FALSE(touchesAny({0, 0, width, 400}, {}));
}

TEST(PanelPlacement, GrowingMovesUpOnlyAsFarAsNeeded) {
    const QRect screen(0, 0, 800, 600);
    EXPECT_EQ(resized({10, 50, width, 300}, 400, screen), QRect(10, 50, width, 400));
    EXPECT_EQ(resized({10, 250, width, 300}, 400, screen), QRect(10, 200, width, 400));
    EXPECT_EQ(resized({10, 250, width, 300}, 900, screen), QRect(10, 0, width, 600));
}

TEST(PanelPlacement, GrowingInPlaceEndsAtTheEdgeOfTheScreen) {
    const QRect screen(0, 0, 800, 600);
    EXPECT_EQ(resizedInPlace({10, 50, width, 300}, 400, screen), QRect(10, 50, width, 400));
    EXPECT_EQ(resizedInPlace({10, 250, width, 300}, 400, screen), QRect(10, 250, width, 350));
    EXPECT_EQ(resizedInPlace({10, 500, width, 300}, 400, screen), QRect(10, 500, width, 400));
}

TEST(PanelPlacement, PanelBeyondTheEdgeStaysWhereTheUserPutIt) {
    const QRect screen(0, 0, 800, 600);
    EXPECT_EQ(resized({10, 500, width, 300}, 400, screen), QRect(10, 500, width, 400));
}

} // namespace
} // namespace quorvane::panelplacement
