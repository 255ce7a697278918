// SPDX-License-Identifier: MIT
#include "PopoverAnchor.h"

#include <testing/CallLog.h>
#include <testing/FakeWorkspace.h>

#include <QGuiApplication>
#include <QScreen>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

class PopoverAnchorTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakeWorkspace workspace{log};
    PopoverAnchor anchor{workspace};
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
};

TEST_F(PopoverAnchorTest, IsTheIconWhereItsFrameIsKnown) {
    anchor.noteClick({5, 5});
    const QRect icon(100, 0, 22, 22);
    EXPECT_EQ(anchor.place(icon).anchor, icon);
    EXPECT_EQ(anchor.place(icon).available, area);
}

TEST_F(PopoverAnchorTest, IsThePlaceOfTheClickAlsoForTheShortcutAfterIt) {
    anchor.noteClick({50, 5});
    EXPECT_EQ(anchor.place(std::nullopt).anchor, QRect(50, 5, 1, 1));
    anchor.clickHandled();
    EXPECT_EQ(anchor.place(std::nullopt).anchor, QRect(50, 5, 1, 1));
}

TEST_F(PopoverAnchorTest, ClickOnARemovedScreenDoesNotCount) {
    anchor.noteClick({area.right() + 1000, 5});
    anchor.clickHandled();
    EXPECT_EQ(anchor.place(std::nullopt).anchor.topLeft(), area.topRight());
}

TEST_F(PopoverAnchorTest, WithoutFrameOrClickIsTheCornerAtTheBar) {
    const QRect screen(100, 100, 800, 600);
    const auto corner = [&](const QRect& available) {
        return PopoverAnchor::corner(screen, available, Qt::LeftToRight);
    };
    EXPECT_EQ(corner(screen), screen.topRight());
    const auto belowBar = screen.adjusted(0, 28, 0, 0);
    EXPECT_EQ(corner(belowBar), belowBar.topRight());
    const auto aboveBar = screen.adjusted(0, 0, 0, -28);
    EXPECT_EQ(corner(aboveBar), aboveBar.bottomRight());
    const auto besideBar = screen.adjusted(28, 0, 0, 0);
    EXPECT_EQ(corner(besideBar), besideBar.topRight());
    EXPECT_EQ(PopoverAnchor::corner(screen, aboveBar, Qt::RightToLeft), aboveBar.bottomLeft());
}

} // namespace
} // namespace quorvane
