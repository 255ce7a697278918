// SPDX-License-Identifier: MIT
#include "PanelFrame.h"

#include <app/Panel.h>
#include <panel/PanelMetrics.h>
#include <testing/CallLog.h>
#include <testing/FakeWorkspace.h>
#include <testing/ImmediateSettingsWriter.h>

#include <QApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class PanelFrameTest : public testing::Test {
protected:
    PanelFrameTest() {
        (new QVBoxLayout(content))->addWidget(part);
        content->layout()->setContentsMargins(0, 0, 0, 0);
        setContentHeight(400);
    }

    void setContentHeight(int height) {
        part->setFixedHeight(height);
        layOut();
    }

    /// A change of layout reaches the panel one event-loop iteration after the content.
    static void layOut() {
        QApplication::sendPostedEvents();
        QApplication::sendPostedEvents();
    }

    void show() {
        frame.restore();
        panel.show();
        frame.follow();
        layOut();
    }

    void setPointerOverPanel(bool isOver) {
        panel.setAttribute(Qt::WA_UnderMouse, isOver);
        QEvent event(isOver ? QEvent::Enter : QEvent::Leave);
        QApplication::sendEvent(&panel, &event);
    }

    VirtualMainQueue queue;
    CallLog log{queue};
    FakeWorkspace workspace{log};
    QTemporaryDir folder;
    ImmediateSettingsWriter files;
    WindowFrameStore frames{folder.filePath(u"windows.json"_s), files};
    QWidget* content = new QWidget; // the panel takes it over
    QWidget* part = new QWidget;
    Panel panel{content};
    PanelFrame frame{panel, {frames, queue, workspace}};
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
};

TEST_F(PanelFrameTest, HeightFollowsTheContentInBothDirections) {
    show();
    const auto top = panel.y();
    setContentHeight(450);
    EXPECT_EQ(panel.geometry(), QRect(panel.x(), top, panelmetrics::width, 450));
    setContentHeight(350);
    EXPECT_EQ(panel.geometry(), QRect(panel.x(), top, panelmetrics::width, 350));
    setContentHeight(10);
    EXPECT_EQ(panel.height(), 300);
}

TEST_F(PanelFrameTest, GrowthEndsAtTheScreensHeight) {
    show();
    setContentHeight(area.height() * 3);
    EXPECT_EQ(panel.height(), area.height());
    EXPECT_EQ(panel.y(), area.top());
}

TEST_F(PanelFrameTest, GrowthMovesThePanelUpRatherThanOffItsScreen) {
    show();
    panel.move(20, area.bottom() + 1 - panel.height());
    setContentHeight(450);
    EXPECT_EQ(panel.geometry(), QRect(20, area.bottom() + 1 - 450, panelmetrics::width, 450));
}

TEST_F(PanelFrameTest, PanelDoesNotMoveUnderThePointer) {
    show();
    const int top = area.bottom() + 1 - panel.height() - 10;
    panel.move(20, top);
    setPointerOverPanel(true);
    setContentHeight(450);
    EXPECT_EQ(panel.geometry(), QRect(20, top, panelmetrics::width, 410));
    setPointerOverPanel(false);
    EXPECT_EQ(panel.geometry(), QRect(20, area.bottom() + 1 - 450, panelmetrics::width, 450));
}

TEST_F(PanelFrameTest, HeightThatTheUserChoseIsTheMinimum) {
    show();
    panel.resize(panelmetrics::width, 500);
    setContentHeight(420);
    EXPECT_EQ(panel.height(), 500);
    setContentHeight(520);
    EXPECT_EQ(panel.height(), 520);
    setContentHeight(400);
    EXPECT_EQ(panel.height(), 500);
}

TEST_F(PanelFrameTest, HeightOfTheContentIsNoMinimum) {
    show();
    setContentHeight(450);
    panel.move(20, 20);
    setContentHeight(400);
    EXPECT_EQ(panel.height(), 400);
}

TEST_F(PanelFrameTest, LateReportOfARequestedHeightIsNotTakenForTheUsers) {
    show();
    setContentHeight(450);
    setContentHeight(400);
    // The desktop answers both changes only now.
    panel.resize(panelmetrics::width, 450);
    panel.resize(panelmetrics::width, 400);
    setContentHeight(380);
    EXPECT_EQ(panel.height(), 380);
    queue.advance(1s);
    EXPECT_EQ(frames.frame(u"PanelV2"_s), std::nullopt);
}

TEST_F(PanelFrameTest, StoredHeightIsTheMinimum) {
    frames.setFrame(u"PanelV2"_s, QRect(30, 40, panelmetrics::width, 480));
    show();
    setContentHeight(420);
    EXPECT_EQ(panel.geometry(), QRect(30, 40, panelmetrics::width, 480));
}

TEST_F(PanelFrameTest, FrameIsSavedWhenTheUserStopsMovingThePanel) {
    show();
    panel.move(20, 30);
    queue.advance(400ms);
    panel.move(25, 35);
    queue.advance(400ms);
    EXPECT_EQ(frames.frame(u"PanelV2"_s), std::nullopt);
    queue.advance(100ms);
    EXPECT_EQ(frames.frame(u"PanelV2"_s), QRect(25, 35, panelmetrics::width, 400));
}

} // namespace
} // namespace quorvane
