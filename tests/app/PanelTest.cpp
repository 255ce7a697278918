// SPDX-License-Identifier: MIT
#include <app/Panel.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

class PanelTest : public testing::Test {
protected:
    QWidget* content = new QWidget; // the panel takes it over
    QVBoxLayout* column = new QVBoxLayout(content);
    Panel panel{content};
};

TEST_F(PanelTest, IsAFramelessToolThatStaysOnTopAndLeavesTheProgramRunning) {
    EXPECT_EQ(panel.windowType(), Qt::Tool);
    EXPECT_TRUE(panel.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(panel.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(panel.windowFlags().testFlag(Qt::X11BypassWindowManagerHint));
    EXPECT_FALSE(panel.testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(PanelTest, CloseOnlyHides) {
    panel.show();
    panel.close();
    EXPECT_FALSE(panel.isVisible());
    panel.show();
    EXPECT_TRUE(panel.isVisible());
}

TEST_F(PanelTest, ReportsAChangedFittingHeight) {
    panel.show();
    QSignalSpy spy(&panel, &Panel::fittingHeightChanged);
    auto* tall = new QWidget;
    tall->setFixedHeight(700);
    column->addWidget(tall);
    tall->show();
    QApplication::sendPostedEvents();
    EXPECT_EQ(spy.count(), 1);
    EXPECT_GE(panel.fittingHeight(), 700);
}

} // namespace
} // namespace quorvane
