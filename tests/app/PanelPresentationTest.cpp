// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <panel/PanelMetrics.h>

#include <QScreen>
#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;

class PanelPresentationTest : public DelegateFixture {
protected:
    void drag(int x, int y) {
        traits().held = HeldInput{{}, 1};
        panel()->move(x, y);
        traits().held = HeldInput{};
    }

    [[nodiscard]] FakeWindowTraits& traits() const {
        return static_cast<FakeWindowTraits&>(*platform.windowTraits);
    }

    /// What the user sees as the panel.
    [[nodiscard]] static QRect surface() { return qobject_cast<Panel*>(panel())->frame(); }

    const QMargins shadow{9, 3, 9, 15};
};

TEST_F(PanelPresentationTest, FollowsToAnotherVirtualDesktopWhileVisible) {
    launch();
    log.clear();
    workspace->changeSpace();
    EXPECT_THAT(calls(), ElementsAre("orderFront panel"));
    pressShortcut();
    log.clear();
    workspace->changeSpace();
    EXPECT_TRUE(calls().empty());
}

TEST_F(PanelPresentationTest, IsAtItsPlaceAgainAfterARestart) {
    launch();
    const auto height = panel()->height();
    drag(40, 30);
    queue.advance(1s);
    makeDelegate();
    launch();
    EXPECT_EQ(panel()->geometry(), QRect(40, 30, panelmetrics::width, height));
}

TEST_F(PanelPresentationTest, StoredWidthIsCorrected) {
    frames().setFrame(u"PanelV2"_s, QRect(20, 10, 900, 450));
    launch();
    EXPECT_EQ(panel()->geometry(), QRect(20, 10, panelmetrics::width, 450));
}

TEST_F(PanelPresentationTest, IsCentredIfOffEveryScreen) {
    frames().setFrame(u"PanelV2"_s, QRect(9000, 9000, panelmetrics::width, 400));
    launch();
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(panel()->geometry().center().x(), screen.center().x());
    EXPECT_TRUE(screen.intersects(panel()->geometry()));
}

TEST_F(PanelPresentationTest, FirstOneIsCentredAndAtLeast300High) {
    launch();
    EXPECT_EQ(panel()->width(), panelmetrics::width);
    EXPECT_GE(panel()->height(), 300);
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(panel()->geometry().center().x(), screen.center().x());
}

TEST_F(PanelPresentationTest, FrameThatTheUserDidNotChooseIsNotSaved) {
    launch();
    queue.advance(1s);
    delegate->terminate();
    EXPECT_EQ(frames().frame(u"PanelV2"_s), std::nullopt);
}

TEST_F(PanelPresentationTest, QuitSavesAFrameThatIsNotYetSaved) {
    launch();
    drag(60, 50);
    delegate->terminate();
    EXPECT_EQ(frames().frame(u"PanelV2"_s)->topLeft(), QPoint(60, 50));
}

TEST_F(PanelPresentationTest, ShadowIsNoPartOfThePanel) {
    launch();
    const auto plain = surface();
    EXPECT_EQ(plain, panel()->geometry());
    delegate->terminate();
    makeDelegate();
    traits().composited = true;
    launch();
    EXPECT_EQ(surface(), plain);
    EXPECT_EQ(panel()->geometry(), plain.marginsAdded(shadow));
    EXPECT_EQ(traits().shadow, shadow);
    drag(40, 30);
    delegate->terminate();
    EXPECT_EQ(frames().frame(u"PanelV2"_s)->topLeft(), QPoint(49, 33));
}

TEST_F(PanelPresentationTest, ShadowGoesAndComesWhileThePanelShows) {
    traits().composited = true;
    launch();
    const auto place = surface();
    traits().setComposited(false);
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_EQ(panel()->geometry(), place);
    EXPECT_EQ(traits().shadow, QMargins());
    traits().setComposited(true);
    EXPECT_EQ(panel()->geometry(), place.marginsAdded(shadow));
    EXPECT_EQ(traits().shadow, shadow);
    queue.advance(1s);
    EXPECT_EQ(frames().frame(u"PanelV2"_s), std::nullopt);
}

TEST_F(PanelPresentationTest, PlainPanelWithoutTheFocusGetsItsShadowAtTheNextShow) {
    launch();
    ASSERT_FALSE(panel()->isActiveWindow());
    const auto place = surface();
    traits().setComposited(true);
    EXPECT_EQ(panel()->geometry(), place);
    pressShortcut();
    pressShortcut();
    EXPECT_EQ(surface(), place);
    EXPECT_EQ(panel()->geometry(), place.marginsAdded(shadow));
}

} // namespace
} // namespace quorvane
