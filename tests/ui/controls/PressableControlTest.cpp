// SPDX-License-Identifier: MIT
#include <controls/ActionButton.h>
#include <controls/CheckBox.h>
#include <controls/IconButton.h>
#include <controls/TextButton.h>
#include <controls/ToggleSwitch.h>
#include <support/ControlWindow.h>

#include <QAccessibleActionInterface>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class PressableControlTest : public testing::Test {
protected:
    ControlWindow window;
    TextButton& button = window.add(new TextButton(u"Done"_s));
    CheckBox& box = window.add(new CheckBox(u"Time"_s));
    QSignalSpy clicks{&button, &TextButton::clicked};

    PressableControlTest() { EXPECT_TRUE(window.open()); }

    static void sendRepeatedKey(QWidget& widget, Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, u"\r"_s, true);
        QApplication::sendEvent(&widget, &event);
    }

    [[nodiscard]] bool repaintsAfter(QWidget& widget, const std::function<void()>& change) {
        struct PaintWatcher final : QObject {
            bool painted = false;

            bool eventFilter(QObject* /*watched*/, QEvent* event) override {
                painted = painted || event->type() == QEvent::Paint;
                return false;
            }
        };

        PaintWatcher watcher;
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        widget.installEventFilter(&watcher);
        change();
        return QTest::qWaitFor([&] { return watcher.painted; });
    }
};

TEST_F(PressableControlTest, SpaceReturnAndEnterPressIt) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        clicks.clear();
        QTest::keyClick(&button, key);
        EXPECT_EQ(clicks.count(), 1) << key;
    }
    clicks.clear();
    QTest::keyClick(&button, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(PressableControlTest, KeyThatIsHeldDownPressesOnce) {
    sendRepeatedKey(button, Qt::Key_Return);
    sendRepeatedKey(button, Qt::Key_Enter);
    sendRepeatedKey(button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(PressableControlTest, ReturnWithAModifierIsNotItsOwn) {
    QTest::keyClick(&button, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(PressableControlTest, LeftClickPressesItAndOtherButtonsDoNot) {
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    QTest::mouseClick(&button, Qt::RightButton);
    QTest::mouseClick(&button, Qt::MiddleButton);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(PressableControlTest, PressThatLeavesItIsTakenBack) {
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {-20, -20});
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(PressableControlTest, DisabledOneDoesNotReact) {
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    auto* actions = accessible(button).actionInterface();
    EXPECT_FALSE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_TRUE(accessible(button).state().disabled);
}

TEST_F(PressableControlTest, DisabledOneIsPaler) {
    const auto enabled = picture(button);
    button.setEnabled(false);
    EXPECT_NE(picture(button), enabled);
}

TEST_F(PressableControlTest, FollowsThePaletteWhileItIsShown) {
    const auto light = picture(button);
    EXPECT_TRUE(
        repaintsAfter(button, [this] { window.setPalette(builtInPalette(ColorScheme::Dark)); }));
    EXPECT_NE(picture(button), light);
}

TEST_F(PressableControlTest, FollowsTheFontWhileItIsShown) {
    const auto width = button.sizeHint().width();
    auto font = window.font();
    font.setPixelSize(20);
    EXPECT_TRUE(repaintsAfter(button, [&] { window.setFont(font); }));
    EXPECT_GT(button.sizeHint().width(), width);
    EXPECT_EQ(button.width(), button.sizeHint().width());
}

TEST_F(PressableControlTest, FollowsTheDirectionWhileItIsShown) {
    EXPECT_TRUE(repaintsAfter(box, [this] { window.setLayoutDirection(Qt::RightToLeft); }));
    EXPECT_EQ(box.focusOutline().rect.right(), box.width());
}

TEST_F(PressableControlTest, AssistiveTechnologyKnowsItAndPressesIt) {
    auto& interface = accessible(button);
    EXPECT_EQ(interface.role(), QAccessible::Button);
    EXPECT_EQ(interface.text(QAccessible::Name), u"Done"_s);
    button.setAccessibleDescription(u"Closes it"_s);
    EXPECT_EQ(interface.text(QAccessible::Description), u"Closes it"_s);
    EXPECT_FALSE(interface.state().checkable);
    EXPECT_FALSE(interface.state().expandable);
    interface.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(PressableControlTest, BoxTogglesByKeyByMouseAndByAssistiveTechnology) {
    auto& interface = accessible(box);
    EXPECT_EQ(interface.role(), QAccessible::CheckBox);
    EXPECT_EQ(interface.text(QAccessible::Name), u"Time"_s);
    EXPECT_FALSE(interface.state().checked);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_TRUE(interface.state().checked);
    QTest::mouseClick(&box, Qt::LeftButton, {}, {box.width() - 3, box.height() / 2});
    EXPECT_FALSE(box.isChecked());
    interface.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(box.isChecked());
}

TEST_F(PressableControlTest, LockedBoxKeepsItsMark) {
    box.setChecked(true);
    box.setEnabled(false);
    QTest::keyClick(&box, Qt::Key_Space);
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_TRUE(box.isChecked());
}

TEST_F(PressableControlTest, SwitchTogglesAndMovesItsKnob) {
    auto& toggle = window.add(new ToggleSwitch);
    toggle.setAccessibleName(u"Show starred only"_s);
    EXPECT_EQ(accessible(toggle).role(), QAccessible::CheckBox);
    EXPECT_EQ(accessible(toggle).text(QAccessible::Name), u"Show starred only"_s);
    EXPECT_EQ(toggle.focusOutline().rect.size(), QSizeF(32, 18));
    EXPECT_GE(toggle.sizeHint().height(), 24);
    const auto off = picture(toggle);
    QTest::keyClick(&toggle, Qt::Key_Space);
    EXPECT_TRUE(accessible(toggle).state().checked);
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture(toggle) != off; }));
    QTest::mouseClick(&toggle, Qt::LeftButton);
    EXPECT_FALSE(toggle.isChecked());
}

TEST_F(PressableControlTest, SymbolButtonIsNamedByItsTooltip) {
    auto& close = window.add(new IconButton(IconButton::Kind::Close, Symbol::Xmark, u"Close"_s));
    EXPECT_EQ(close.toolTip(), u"Close"_s);
    EXPECT_EQ(accessible(close).text(QAccessible::Name), u"Close"_s);
    EXPECT_EQ(close.sizeHint(), QSize(28, 28));
    const IconButton plus(IconButton::Kind::Section, Symbol::Plus, u"Add time zone"_s);
    EXPECT_EQ(plus.sizeHint(), QSize(24, 24));
}

TEST_F(PressableControlTest, SymbolButtonTakesAnotherNameWithItsSymbol) {
    auto& toggle =
        window.add(new IconButton(IconButton::Kind::Header, Symbol::Macwindow, u"Open as panel"_s));
    toggle.setFace(Symbol::MenubarArrowUpRectangle, u"Open as popover at the tray icon"_s);
    EXPECT_EQ(toggle.toolTip(), u"Open as popover at the tray icon"_s);
    EXPECT_EQ(accessible(toggle).text(QAccessible::Name), u"Open as popover at the tray icon"_s);
    EXPECT_FALSE(accessible(toggle).state().expandable);
}

} // namespace
} // namespace quorvane
