// SPDX-License-Identifier: MIT
#include "PanelPlacement.h"

#include <gtest/gtest.h>

namespace quorvane::panelplacement {
namespace {

TEST(PanelPlacement, HeightIsAtLeastTheMinimum) {
    EXPECT_EQ(contentHeight(0), 300);
    EXPECT_EQ(contentHeight(299), 300);
    EXPECT_EQ(contentHeight(300), 300);
    EXPECT_EQ(contentHeight(301), 301);
}

TEST(PanelPlacement, CentredLeavesTheSameSpaceOnBothSides) {
    EXPECT_EQ(centred({504, 400}, {0, 0, 1504, 1000}), QRect(500, 300, 504, 400));
    EXPECT_EQ(centred({504, 400}, {1000, 50, 1504, 1000}), QRect(1500, 350, 504, 400));
}

TEST(PanelPlacement, CentredOnATooSmallScreenShowsTheTopLeft) {
    EXPECT_EQ(centred({504, 400}, {10, 20, 300, 200}), QRect(10, 20, 504, 400));
}

TEST(PanelPlacement, StoredFrameKeepsPlaceAndHeightButNotWidth) {
    EXPECT_EQ(restored(QRect(30, 40, 700, 555)), QRect(30, 40, 504, 555));
    EXPECT_EQ(restored(std::nullopt), std::nullopt);
}

TEST(PanelPlacement, OnePixelOnAnyScreenIsEnough) {
    const std::vector<QRect> screens{{0, 0, 800, 600}, {800, 0, 800, 600}};
    EXPECT_TRUE(touchesAny({1599, 599, 504, 400}, screens));
    EXPECT_FALSE(touchesAny({1600, 0, 504, 400}, screens));
    EXPECT_FALSE(touchesAny({-504, 0, 504, 400}, screens));
    EXPECT_TRUE(touchesAny({-503, 0, 504, 400}, screens));
    EXPECT_FALSE(touchesAny({0, 0, 504, 400}, {}));
}

TEST(PanelPlacement, GrowingMovesUpOnlyAsFarAsNeeded) {
    const QRect screen(0, 0, 800, 600);
    EXPECT_EQ(resized({10, 50, 504, 300}, 400, screen), QRect(10, 50, 504, 400));
    EXPECT_EQ(resized({10, 250, 504, 300}, 400, screen), QRect(10, 200, 504, 400));
    EXPECT_EQ(resized({10, 250, 504, 300}, 900, screen), QRect(10, 0, 504, 600));
}

TEST(PanelPlacement, GrowingInPlaceEndsAtTheEdgeOfTheScreen) {
    const QRect screen(0, 0, 800, 600);
    EXPECT_EQ(resizedInPlace({10, 50, 504, 300}, 400, screen), QRect(10, 50, 504, 400));
    EXPECT_EQ(resizedInPlace({10, 250, 504, 300}, 400, screen), QRect(10, 250, 504, 350));
    EXPECT_EQ(resizedInPlace({10, 500, 504, 300}, 400, screen), QRect(10, 500, 504, 400));
}

TEST(PanelPlacement, PanelBeyondTheEdgeStaysWhereTheUserPutIt) {
    const QRect screen(0, 0, 800, 600);
    EXPECT_EQ(resized({10, 500, 504, 300}, 400, screen), QRect(10, 500, 504, 400));
}

} // namespace
} // namespace quorvane::panelplacement
