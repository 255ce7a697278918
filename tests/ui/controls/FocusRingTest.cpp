// SPDX-License-Identifier: MIT
#include <controls/FocusRing.h>
#include <controls/TextButton.h>
#include <support/ControlWindow.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class FocusRingTest : public testing::Test {
protected:
    ControlWindow window;
    QWidget& group = window.add(new QWidget);
    TextButton* first = new TextButton(u"First"_s, &group);
    TextButton* second = new TextButton(u"Second"_s, &group);
    FocusRing ring{&window};

    FocusRingTest() {
        group.setMinimumSize(300, 200);
        first->setGeometry(20, 20, 80, 24);
        second->setGeometry(20, 60, 80, 24);
        EXPECT_TRUE(window.open());
        // The window's activation has given it the focus already.
        first->clearFocus();
    }

    /// Where the ring belongs: two points of line, one of gap.
    [[nodiscard]] QRect around(const QWidget& target) const {
        return QRect(target.mapTo(&window, QPoint()), target.size()).adjusted(-3, -3, 3, 3);
    }
};

TEST_F(FocusRingTest, ShowsForTheKeyboardsFocusAndNotForThePointers) {
    EXPECT_FALSE(ring.isVisible());
    first->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(ring.isVisible());
    EXPECT_EQ(ring.geometry(), around(*first));
    second->setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(ring.geometry(), around(*second));
    first->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(ring.isVisible());
}

TEST_F(FocusRingTest, ShowsFromTheFirstKeyThatMovesOrPresses) {
    for (const auto key :
         {Qt::Key_Tab,
          Qt::Key_Left,
          Qt::Key_Right,
          Qt::Key_Up,
          Qt::Key_Down,
          Qt::Key_Home,
          Qt::Key_End,
          Qt::Key_PageUp,
          Qt::Key_PageDown,
          Qt::Key_Space,
          Qt::Key_Return,
          Qt::Key_Enter}) {
        ring.setLastInput(InputDevice::Pointer);
        second->setFocus(Qt::OtherFocusReason);
        ASSERT_FALSE(ring.isVisible());
        QTest::keyClick(second, key);
        ASSERT_TRUE(ring.isVisible()) << key;
        EXPECT_EQ(ring.geometry(), around(*QApplication::focusWidget())) << key;
    }
}

TEST_F(FocusRingTest, StaysHiddenForOtherKeys) {
    first->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(first, Qt::Key_Shift);
    QTest::keyClick(first, Qt::Key_X);
    QTest::keyClick(first, Qt::Key_Home, Qt::AltModifier);
    QTest::keyClick(first, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(ring.isVisible());
}

TEST_F(FocusRingTest, FollowsWhatTheProgramFocusesForAKey) {
    first->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(first, Qt::Key_Down);
    second->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(ring.geometry(), around(*second));
}

TEST_F(FocusRingTest, ShowsAtOnceInAWindowThatIsOpenedByKeyboard) {
    for (const auto device : {InputDevice::Pointer, InputDevice::Keyboard}) {
        ControlWindow opened;
        const auto& button = opened.add(new TextButton(u"Only"_s));
        FocusRing openedRing(&opened);
        openedRing.setLastInput(device);
        ASSERT_TRUE(opened.open());
        ASSERT_TRUE(button.hasFocus());
        EXPECT_EQ(openedRing.isVisible(), device == InputDevice::Keyboard);
    }
}

TEST_F(FocusRingTest, KnowsWhatTheWindowWasWorkedWithLast) {
    EXPECT_EQ(FocusRing::lastInput(window), InputDevice::Pointer);
    QTest::keyClick(first, Qt::Key_Control);
    EXPECT_EQ(FocusRing::lastInput(window), InputDevice::Pointer);
    QTest::keyClick(first, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(FocusRing::lastInput(window), InputDevice::Keyboard);
    QTest::mouseClick(second, Qt::LeftButton);
    EXPECT_EQ(FocusRing::lastInput(window), InputDevice::Pointer);
    EXPECT_EQ(FocusRing::lastInput(group), InputDevice::Pointer);
}

TEST_F(FocusRingTest, FollowsItsTargetAndWhatThatStandsIn) {
    first->setFocus(Qt::TabFocusReason);
    first->move(100, 90);
    EXPECT_EQ(ring.geometry(), around(*first));
    first->resize(50, 40);
    EXPECT_EQ(ring.geometry(), around(*first));
    group.move(30, 50);
    EXPECT_EQ(ring.geometry(), around(*first));
}

TEST_F(FocusRingTest, GoesWithItsTarget) {
    first->setFocus(Qt::TabFocusReason);
    ring.surround(first);
    first->hide();
    ring.surround(first);
    EXPECT_FALSE(ring.isVisible());
    first->show();
    EXPECT_TRUE(ring.isVisible());
    group.hide();
    EXPECT_FALSE(ring.isVisible());
}

TEST_F(FocusRingTest, IsGoneWhenItsTargetIsDestroyed) {
    first->setFocus(Qt::TabFocusReason);
    second->setFocusPolicy(Qt::NoFocus);
    ASSERT_TRUE(ring.isVisible());
    delete first;
    EXPECT_FALSE(ring.isVisible());
    EXPECT_FALSE(picture(window).isNull());
}

TEST_F(FocusRingTest, IsGoneWhenATargetWithoutFocusIsDestroyed) {
    ring.surround(first);
    ASSERT_TRUE(ring.isVisible());
    delete first;
    EXPECT_FALSE(ring.isVisible());
}

TEST_F(FocusRingTest, StaysWithTheNextTargetWhenTheLastIsDestroyed) {
    first->setFocus(Qt::TabFocusReason);
    second->setFocus(Qt::TabFocusReason);
    delete first;
    EXPECT_TRUE(ring.isVisible());
    EXPECT_EQ(ring.geometry(), around(*second));
}

TEST_F(FocusRingTest, TakesNoPressOfTheMouse) {
    first->setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(ring.isVisible());
    EXPECT_TRUE(ring.testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(window.childAt(around(*first).center()), first);
    EXPECT_EQ(window.childAt(around(*first).topLeft()), &group);
    EXPECT_EQ(ring.focusPolicy(), Qt::NoFocus);
}

TEST_F(FocusRingTest, IsDrawnInTheAccentOnAllSides) {
    first->setFocus(Qt::TabFocusReason);
    const auto image = picture(window);
    const auto place = around(*first);
    const QColor accent = Theme::builtIn(ColorScheme::Light).accentText;
    for (const auto& point :
         {QPoint(place.center().x(), place.top()),
          QPoint(place.center().x(), place.bottom()),
          QPoint(place.left(), place.center().y()),
          QPoint(place.right(), place.center().y())})
        EXPECT_EQ(QColor(image.pixel(point)).name(), accent.name());
}

} // namespace
} // namespace quorvane
