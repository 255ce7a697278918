// SPDX-License-Identifier: MIT
#include "PanelFrame.h"

#include "WindowActivation.h"

#include <app/Panel.h>
#include <panel/PanelMetrics.h>
#include <testing/CallLog.h>
#include <testing/FakeWindowTraits.h>
#include <testing/FakeWorkspace.h>
#include <testing/ImmediateSettingsWriter.h>

#include <QApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <functional>

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
        showUnpainted();
        Q_EMIT panel.painted();
    }

    void showUnpainted() {
        frame.place();
        panel.show();
        makeActive(panel);
        layOut();
    }

    /// The window manager has done with the panel, which stands still.
    void settle() { queue.advance(500ms); }

    /// Carries out the change as a window manager does while the user drags with a button.
    void withButtonHeld(const std::function<void()>& change) {
        traits.held = HeldInput{{}, 1};
        change();
        traits.held = HeldInput{};
    }

    void dragTo(int x, int y) {
        withButtonHeld([=, this] { panel.move(x, y); });
    }

    void dragToHeight(int height) {
        withButtonHeld([=, this] { panel.resize(panelmetrics::width, height); });
    }

    [[nodiscard]] std::optional<QRect> stored() const { return frames.frame(u"PanelV2"_s); }

    [[nodiscard]] QRect centred(int height) const {
        QRect centred(0, 0, panelmetrics::width, height);
        centred.moveCenter(area.center());
        return centred;
    }

    void setPointerOverPanel(bool isOver) {
        panel.setAttribute(Qt::WA_UnderMouse, isOver);
        QEvent event(isOver ? QEvent::Enter : QEvent::Leave);
        QApplication::sendEvent(&panel, &event);
    }

    VirtualMainQueue queue;
    CallLog log{queue};
    FakeWorkspace workspace{log};
    FakeWindowTraits traits{log};
    QTemporaryDir folder;
    ImmediateSettingsWriter files;
    WindowFrameStore frames{folder.filePath(u"windows.json"_s), files};
    QWidget* content = new QWidget; // the panel takes it over
    QWidget* part = new QWidget;
    Panel panel{content};
    PanelFrame frame{panel, {frames, queue, workspace, traits}};
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

TEST_F(PanelFrameTest, WhatGrowsBeforeItIsSeenIsInTheMiddleAllTheSame) {
    showUnpainted();
    setContentHeight(450);
    EXPECT_EQ(panel.geometry(), centred(450));
}

TEST_F(PanelFrameTest, GrowthEndsAtTheScreensHeight) {
    show();
    setContentHeight(area.height() * 3);
    EXPECT_EQ(panel.height(), area.height());
    EXPECT_EQ(panel.y(), area.top());
}

TEST_F(PanelFrameTest, GrowthMovesThePanelUpRatherThanOffItsScreen) {
    show();
    dragTo(20, area.bottom() + 1 - panel.height());
    setContentHeight(450);
    EXPECT_EQ(panel.geometry(), QRect(20, area.bottom() + 1 - 450, panelmetrics::width, 450));
}

TEST_F(PanelFrameTest, PanelDoesNotMoveUnderThePointer) {
    show();
    const int top = area.bottom() + 1 - panel.height() - 10;
    dragTo(20, top);
    setPointerOverPanel(true);
    setContentHeight(450);
    EXPECT_EQ(panel.geometry(), QRect(20, top, panelmetrics::width, 410));
    setPointerOverPanel(false);
    EXPECT_EQ(panel.geometry(), QRect(20, area.bottom() + 1 - 450, panelmetrics::width, 450));
}

TEST_F(PanelFrameTest, ComesBackAfterGrowthOnceThePointerIsOutside) {
    show();
    const QRect usersFrame(20, area.bottom() + 1 - 400, panelmetrics::width, 400);
    dragTo(20, usersFrame.top());
    setContentHeight(500);
    setPointerOverPanel(true);
    const int grownTop = panel.y();
    setContentHeight(400);
    EXPECT_EQ(panel.geometry(), QRect(20, grownTop, panelmetrics::width, 400));
    setPointerOverPanel(false);
    EXPECT_EQ(panel.geometry(), usersFrame);
}

TEST_F(PanelFrameTest, ComesBackAfterGrowthAtTheNextShowAtTheLatest) {
    show();
    dragTo(20, area.bottom() + 1 - 400);
    setContentHeight(500);
    setPointerOverPanel(true);
    setContentHeight(400);
    panel.hide();
    show();
    EXPECT_EQ(panel.geometry(), QRect(20, area.bottom() + 1 - 400, panelmetrics::width, 400));
}

TEST_F(PanelFrameTest, GrowthIsNeitherThePlaceNorTheHeightThatIsStored) {
    show();
    dragTo(20, area.bottom() + 1 - 400);
    setContentHeight(500);
    settle();
    dragTo(30, area.top());
    settle();
    ASSERT_TRUE(stored());
    Panel next{new QWidget};
    PanelFrame nextFrame{next, {frames, queue, workspace, traits}};
    nextFrame.place();
    EXPECT_EQ(next.geometry(), QRect(30, area.top(), panelmetrics::width, 300));
}

TEST_F(PanelFrameTest, HeightThatTheUserChoseIsTheMinimum) {
    show();
    dragToHeight(500);
    setContentHeight(420);
    EXPECT_EQ(panel.height(), 500);
    setContentHeight(520);
    EXPECT_EQ(panel.height(), 520);
    setContentHeight(400);
    EXPECT_EQ(panel.height(), 500);
}

TEST_F(PanelFrameTest, LowerHeightThatTheUserChoseStaysUntilTheContentChanges) {
    show();
    dragToHeight(350);
    panel.hide();
    show();
    EXPECT_EQ(panel.height(), 350);
    setContentHeight(410);
    EXPECT_EQ(panel.height(), 410);
}

TEST_F(PanelFrameTest, HeightOfTheContentIsNoMinimum) {
    show();
    setContentHeight(450);
    dragTo(20, 20);
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
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(PanelFrameTest, ReportFromBeforeAGrowthMakesTheGrowthNoHeightOfTheUsers) {
    show();
    const auto place = panel.pos();
    setContentHeight(450);
    // What the desktop did before is told only now, and then its answer.
    panel.setGeometry(place.x() + 2, place.y() + 24, panelmetrics::width, 400);
    panel.setGeometry(place.x(), place.y(), panelmetrics::width, 450);
    dragTo(20, 30);
    setContentHeight(400);
    EXPECT_EQ(panel.height(), 400);
}

TEST_F(PanelFrameTest, StoredHeightIsTheMinimum) {
    frames.setFrame(u"PanelV2"_s, QRect(30, 40, panelmetrics::width, 480));
    PanelFrame restored{panel, {frames, queue, workspace, traits}};
    restored.place();
    panel.show();
    setContentHeight(420);
    EXPECT_EQ(panel.geometry(), QRect(30, 40, panelmetrics::width, 480));
}

TEST_F(PanelFrameTest, FrameIsSavedWhenTheUserStopsMovingThePanel) {
    show();
    dragTo(20, 30);
    queue.advance(400ms);
    dragTo(25, 35);
    queue.advance(400ms);
    EXPECT_EQ(stored(), std::nullopt);
    queue.advance(100ms);
    ASSERT_TRUE(stored());
    EXPECT_EQ(stored()->topLeft(), QPoint(25, 35));
}

TEST_F(PanelFrameTest, WhatTheWindowManagerDoesWhileMappingIsUndoneOnceAndNotStored) {
    show();
    const auto before = panel.geometry();
    panel.move(before.topLeft() + QPoint(2, 24));
    queue.run();
    EXPECT_EQ(panel.geometry(), before);
    panel.move(before.topLeft() + QPoint(2, 24));
    queue.run();
    EXPECT_EQ(panel.pos(), before.topLeft() + QPoint(2, 24));
    queue.advance(2s);
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(PanelFrameTest, StandsAtTheSamePlaceAtEachShowWhateverTheWindowManagerDoes) {
    show();
    dragTo(20, 30);
    for (int round = 0; round < 5; ++round) {
        panel.hide();
        show();
        EXPECT_EQ(panel.pos(), QPoint(20, 30));
        // It insists.
        for (int time = 0; time < 2; ++time) {
            panel.move(22, 54);
            queue.run();
        }
        settle();
    }
    EXPECT_EQ(stored()->topLeft(), QPoint(20, 30));
}

TEST_F(PanelFrameTest, IsCentredAtEachShowUntilTheUserHasMovedIt) {
    show();
    settle();
    setContentHeight(500);
    panel.hide();
    show();
    EXPECT_EQ(panel.geometry(), centred(500));
    settle();
    // Once it has stood still, a change is the user's, however it was made.
    panel.move(20, 30);
    panel.hide();
    show();
    EXPECT_EQ(panel.pos(), QPoint(20, 30));
}

TEST_F(PanelFrameTest, DragOfTheBackgroundIsTheUsersAlsoWhenItsEndIsReportedAfterTheRelease) {
    show();
    traits.held = HeldInput{{}, 1};
    Q_EMIT panel.dragged();
    traits.held = HeldInput{};
    panel.move(20, 30);
    queue.advance(1s);
    ASSERT_TRUE(stored());
    EXPECT_EQ(stored()->topLeft(), QPoint(20, 30));
}

TEST_F(PanelFrameTest, WhereWindowsHaveNoPlaceWhatIsStoredStays) {
    const QRect users(20, 30, panelmetrics::width, 400);
    frames.setFrame(u"PanelV2"_s, users);
    traits.places = false;
    show();
    dragTo(0, 0);
    frame.saveNow();
    EXPECT_EQ(stored(), users);
}

} // namespace
} // namespace quorvane
