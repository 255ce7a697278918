// SPDX-License-Identifier: MIT
#include "WindowActivation.h"

#include <app/Panel.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStyleHints>
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

TEST_F(PanelTest, FocusIsWhereItWasThoughTheDesktopGivesItToThePanelOnceMoreAsItIsHidden) {
    auto* focused = new QLineEdit;
    column->addWidget(focused);
    column->addWidget(new QLineEdit);
    panel.show();
    makeActive(panel);
    focused->setFocus();
    panel.hide();
    makeActive(panel);
    panel.show();
    EXPECT_EQ(panel.focusWidget(), focused);
}

TEST_F(PanelTest, FocusThatHasNoWidgetAnyMoreStaysWhereItIs) {
    auto* gone = new QLineEdit;
    auto* other = new QLineEdit;
    column->addWidget(gone);
    column->addWidget(other);
    panel.show();
    gone->setFocus();
    panel.hide();
    delete gone;
    other->setFocus();
    panel.show();
    EXPECT_EQ(panel.focusWidget(), other);
}

class PanelDrag : public PanelTest {
protected:
    PanelDrag() { panel.show(); }

    void send(QEvent::Type type, QPoint place, Qt::MouseButtons held) {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, panel.mapToGlobal(place), button, held, Qt::NoModifier);
        QApplication::sendEvent(&panel, &event);
    }

    const int distance = QGuiApplication::styleHints()->startDragDistance();
    const QPoint start{8, 100};
    QSignalSpy drags{&panel, &Panel::dragged};
};

TEST_F(PanelDrag, ClickIsNoDrag) {
    send(QEvent::MouseButtonPress, start, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, start, Qt::NoButton);
    send(QEvent::MouseMove, start + QPoint(distance, distance), Qt::NoButton);
    EXPECT_EQ(drags.count(), 0);
}

TEST_F(PanelDrag, BeginsOnceThePointerHasGoneTheDistanceOfADrag) {
    ASSERT_GT(distance, 1);
    send(QEvent::MouseButtonPress, start, Qt::LeftButton);
    send(QEvent::MouseMove, start + QPoint(distance - 1, 0), Qt::LeftButton);
    EXPECT_EQ(drags.count(), 0);
    send(QEvent::MouseMove, start + QPoint(distance, 0), Qt::LeftButton);
    EXPECT_EQ(drags.count(), 1);
    send(QEvent::MouseMove, start + QPoint(3 * distance, 0), Qt::LeftButton);
    EXPECT_EQ(drags.count(), 1);
}

TEST_F(PanelDrag, BeginsOnlyWithTheLeftButton) {
    QMouseEvent press(
        QEvent::MouseButtonPress,
        start,
        panel.mapToGlobal(start),
        Qt::RightButton,
        Qt::RightButton,
        Qt::NoModifier);
    QApplication::sendEvent(&panel, &press);
    send(QEvent::MouseMove, start + QPoint(3 * distance, 0), Qt::RightButton);
    EXPECT_EQ(drags.count(), 0);
}

} // namespace
} // namespace quorvane
