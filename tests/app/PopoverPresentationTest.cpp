// SPDX-License-Identifier: MIT
#include "PresentationFixture.h"

#include <panel/PanelMetrics.h>

#include <QScreen>
#include <QTest>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

class PopoverPresentationTest : public PresentationFixture {
protected:
    static void pressOutside() { QTest::mouseClick(popover(), Qt::LeftButton, {}, {-20, -20}); }
};

TEST_F(PopoverPresentationTest, PressOutsideClosesThePopover) {
    launchAs(PresentationMode::Popover);
    pressOutside();
    EXPECT_FALSE(isShown(popover()));
}

TEST_F(PopoverPresentationTest, ClickOnTheIconThatClosedThePopoverDoesNotReopenIt) {
    launchAs(PresentationMode::Popover);
    pressOutside();
    queue.advance(299ms);
    clickIcon();
    EXPECT_FALSE(isShown(popover()));
    clickIcon();
    EXPECT_TRUE(isShown(popover()));
}

TEST_F(PopoverPresentationTest, ClickAWhileAfterAPressOutsideOpens) {
    launchAs(PresentationMode::Popover);
    pressOutside();
    queue.advance(300ms);
    clickIcon();
    EXPECT_TRUE(isShown(popover()));
}

TEST_F(PopoverPresentationTest, ShortcutOpensRightAfterAPressOutside) {
    launchAs(PresentationMode::Popover);
    pressOutside();
    pressShortcut();
    EXPECT_TRUE(isShown(popover()));
}

TEST_F(PopoverPresentationTest, IsCentredBelowTheIcon) {
    bar.frame = QRect(300, 0, 22, 22);
    launchAs(PresentationMode::Popover);
    EXPECT_EQ(popover()->geometry().center().x(), QRect(300, 0, 22, 22).center().x());
    EXPECT_EQ(popover()->y(), 22 + 6);
    EXPECT_EQ(popover()->width(), panelmetrics::width);
}

TEST_F(PopoverPresentationTest, IsAboveAnIconAtTheLowerEdge) {
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    bar.frame = QRect(screen.right() - 30, screen.bottom() - 22, 22, 22);
    launchAs(PresentationMode::Popover);
    EXPECT_EQ(popover()->geometry().bottom(), bar.frame->top() - 6 - 1);
    EXPECT_EQ(popover()->geometry().right(), screen.right() - 8);
}

TEST_F(PopoverPresentationTest, WithoutAKnownIconIsInTheCorner) {
    bar.frame = std::nullopt;
    launchAs(PresentationMode::Popover);
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(popover()->geometry().topRight(), screen.topRight() + QPoint(-8, 8));
}

TEST_F(PopoverPresentationTest, FadesInWhereWindowsAreComposited) {
    launchAs(PresentationMode::Window);
    static_cast<FakeWindowTraits&>(*platform.windowTraits).composited = true;
    setMode(PresentationMode::Popover);
    ASSERT_TRUE(isShown(popover()));
    EXPECT_LT(popover()->windowOpacity(), 1);
    EXPECT_TRUE(QTest::qWaitFor([] { return popover()->windowOpacity() == 1; }));
}

TEST_F(PopoverPresentationTest, HasItsShadowAtTheNextShowAfterACompositingManagerCame) {
    launchAs(PresentationMode::Popover);
    const auto plain = popover()->size();
    static_cast<FakeWindowTraits&>(*platform.windowTraits).setComposited(true);
    pressShortcut();
    ASSERT_FALSE(isShown(popover()));
    pressShortcut();
    ASSERT_TRUE(isShown(popover()));
    EXPECT_EQ(popover()->size(), plain.grownBy({9, 3, 9, 15}));
}

TEST_F(PopoverPresentationTest, ShowsAtOnceWhereWindowsAreNotComposited) {
    launchAs(PresentationMode::Popover);
    EXPECT_EQ(popover()->windowOpacity(), 1);
}

} // namespace
} // namespace quorvane
