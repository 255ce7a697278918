// SPDX-License-Identifier: MIT
#include <recorder/KeyCapture.h>
#include <support/PhysicalKeyboard.h>
#include <testing/VirtualMainQueue.h>

#include <QLineEdit>
#include <QShortcut>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace physicalkey;

/// A window with a capture, a field, and a shortcut of its own.
class KeyCaptureTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    std::vector<HotKeyCombo> combos;
    std::vector<ModifierFlags> modifiers;
    int cancelled = 0;
    int shortcuts = 0;
    QWidget window;
    PhysicalKeyboard keyboard{window};
    QLineEdit* field = new QLineEdit(&window);
    KeyCapture* capture = new KeyCapture(
        queue,
        {[this](HotKeyCombo combo) { combos.push_back(combo); },
         [this](ModifierFlags flags) { modifiers.push_back(flags); },
         [this] {
             ++cancelled;
         }},
        &window);

    KeyCaptureTest() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(field);
        column->addWidget(capture);
        const auto* quit = new QShortcut(Qt::CTRL | Qt::Key_Q, &window);
        QObject::connect(quit, &QShortcut::activated, [this] { ++shortcuts; });
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
    }

    void startRecording() {
        capture->setIsRecording(true);
        queue.run();
        ASSERT_EQ(window.focusWidget(), capture);
    }
};

TEST_F(KeyCaptureTest, TakesTheFocusInALaterIteration) {
    capture->setIsRecording(true);
    EXPECT_EQ(window.focusWidget(), field);
    queue.run();
    EXPECT_EQ(window.focusWidget(), capture);
}

TEST_F(KeyCaptureTest, GivesUpTheFocusInALaterIteration) {
    startRecording();
    capture->setIsRecording(false);
    EXPECT_EQ(window.focusWidget(), capture);
    queue.run();
    EXPECT_EQ(window.focusWidget(), nullptr);
}

TEST_F(KeyCaptureTest, GivesTheFocusToTheNextFocus) {
    capture->setNextFocus(field);
    startRecording();
    capture->setIsRecording(false);
    queue.run();
    EXPECT_EQ(window.focusWidget(), field);
}

TEST_F(KeyCaptureTest, LeavesAFocusThatIsElsewhereAlone) {
    capture->setIsRecording(false);
    queue.run();
    EXPECT_EQ(window.focusWidget(), field);
}

TEST_F(KeyCaptureTest, WithoutAWindowNothingHappens) {
    QWidget unshown;
    KeyCapture other(queue, {}, &unshown);
    other.setIsRecording(true);
    queue.run();
    EXPECT_EQ(unshown.focusWidget(), nullptr);
}

TEST_F(KeyCaptureTest, DestroyedBeforeItTakesTheFocusItIsForgotten) {
    capture->setIsRecording(true);
    delete capture;
    queue.run();
    EXPECT_EQ(window.focusWidget(), field);
}

TEST_F(KeyCaptureTest, TabDoesNotLeadToIt) {
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    EXPECT_NE(window.focusWidget(), capture);
}

TEST_F(KeyCaptureTest, KeyWithAModifierIsACombinationByItsPlace) {
    startRecording();
    // The place of K, whatever it is called.
    keyboard.type({KEY_K, Qt::Key_T}, {alt, super});
    EXPECT_EQ(combos, (std::vector{HotKeyCombo{40, 0x900}}));
}

TEST_F(KeyCaptureTest, EachCountedModifierMakesACombination) {
    const std::array<std::pair<PhysicalKey, std::uint32_t>, 4> table{
        {{control, 0x1000}, {alt, 0x800}, {shift, 0x200}, {super, 0x100}}};
    for (const auto& [held, mask] : table) {
        startRecording();
        keyboard.type(d, {held});
        ASSERT_FALSE(combos.empty());
        EXPECT_EQ(combos.back(), (HotKeyCombo{2, mask}));
    }
}

TEST_F(KeyCaptureTest, KeysThatNoKeyCodeNamesHaveOneAllTheSame) {
    startRecording();
    keyboard.type({KEY_SYSRQ, Qt::Key_Print}, {control});
    EXPECT_EQ(combos, (std::vector{HotKeyCombo{0x100 + KEY_SYSRQ, 0x1000}}));
}

TEST_F(KeyCaptureTest, PlainKeyIsSwallowed) {
    startRecording();
    keyboard.type(d);
    EXPECT_TRUE(combos.empty());
    EXPECT_EQ(cancelled, 0);
    EXPECT_EQ(field->text(), QString());
}

TEST_F(KeyCaptureTest, LockKeysAndLevelShiftsMakeNoCombination) {
    startRecording();
    keyboard.type(d, {capsLock});
    keyboard.type(d, {altGr});
    keyboard.type(d, {{KEY_NUMLOCK, Qt::Key_NumLock}});
    keyboard.type({KEY_CAPSLOCK, Qt::Key_unknown, Qt::NoModifier, 0xfe11}, {control});
    EXPECT_TRUE(combos.empty());
}

TEST_F(KeyCaptureTest, ModifierChangesAreReportedAsTheyAreHeldAfterwards) {
    startRecording();
    keyboard.press(control);
    keyboard.press(super);
    keyboard.release(control);
    keyboard.release(super);
    EXPECT_EQ(
        modifiers,
        (std::vector{
            modifier::control,
            modifier::control | modifier::command,
            modifier::command,
            modifier::none}));
    EXPECT_TRUE(combos.empty());
}

TEST_F(KeyCaptureTest, CapsLockIsReportedToo) {
    startRecording();
    keyboard.press(capsLock);
    EXPECT_EQ(modifiers, std::vector{modifier::capsLock});
}

TEST_F(KeyCaptureTest, AltGrIsNotOption) {
    startRecording();
    keyboard.press(altGr);
    EXPECT_EQ(modifiers, std::vector{modifier::none});
}

TEST_F(KeyCaptureTest, SecondOfTwoLikeKeysKeepsTheModifierHeld) {
    startRecording();
    keyboard.press(shift);
    keyboard.press(rightShift);
    keyboard.release(shift);
    EXPECT_EQ(modifiers, (std::vector{modifier::shift, modifier::shift, modifier::shift}));
}

TEST_F(KeyCaptureTest, AltWithShiftIsAltUnderItsOtherName) {
    constexpr quint32 keysymMetaL = 0xffe7;
    startRecording();
    keyboard.press(shift);
    keyboard.press({KEY_LEFTALT, Qt::Key_Meta, Qt::AltModifier, keysymMetaL});
    EXPECT_EQ(modifiers.back(), modifier::shift | modifier::option);
    // Shift is up again, and with it the name is back.
    keyboard.release(shift);
    keyboard.release(alt);
    EXPECT_EQ(modifiers.back(), modifier::none);
}

TEST_F(KeyCaptureTest, EscapeCancelsWhateverIsHeld) {
    startRecording();
    keyboard.type(escape);
    keyboard.type(escape, {shift});
    keyboard.type(escape, {control, super});
    EXPECT_EQ(cancelled, 3);
    EXPECT_TRUE(combos.empty());
}

TEST_F(KeyCaptureTest, EscapeThatWasMovedElsewhereCancelsToo) {
    startRecording();
    keyboard.type({KEY_CAPSLOCK, Qt::Key_Escape});
    EXPECT_EQ(cancelled, 1);
}

TEST_F(KeyCaptureTest, RepeatedKeyIsNoPress) {
    startRecording();
    keyboard.press(d);
    keyboard.press(control);
    keyboard.repeat(d);
    EXPECT_TRUE(combos.empty());
}

TEST_F(KeyCaptureTest, RepeatsOfTheKeyThatEndedTheRecordingReachNobody) {
    class Witness final : public QWidget {
    public:
        using QWidget::QWidget;
        int pressed = 0;
        int released = 0;

    protected:
        void keyPressEvent(QKeyEvent*) override { ++pressed; }

        void keyReleaseEvent(QKeyEvent*) override { ++released; }
    };

    auto* next = new Witness(&window);
    next->setFocusPolicy(Qt::StrongFocus);
    next->show();
    capture->setNextFocus(next);
    startRecording();
    keyboard.press(escape);
    capture->setIsRecording(false);
    queue.run();
    ASSERT_EQ(window.focusWidget(), next);
    keyboard.repeat(escape);
    keyboard.repeat(escape);
    EXPECT_EQ(next->pressed, 0);
    EXPECT_EQ(next->released, 0);
    keyboard.release(escape);
    keyboard.press(escape);
    EXPECT_EQ(next->pressed, 1);
    keyboard.repeat(escape);
    EXPECT_EQ(next->pressed, 2);
}

TEST_F(KeyCaptureTest, NothingIsToldOnceTheRecordingHasEnded) {
    startRecording();
    capture->setIsRecording(false); // the focus goes in a later event-loop iteration
    keyboard.type(d, {control});
    keyboard.type(escape);
    EXPECT_TRUE(combos.empty());
    EXPECT_TRUE(modifiers.empty());
    EXPECT_EQ(cancelled, 0);
}

TEST_F(KeyCaptureTest, ShortcutsOfTheWindowAndItsFocusKeysAreSwallowed) {
    QTest::keyClick(window.windowHandle(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(shortcuts, 1);
    startRecording();
    QTest::keyClick(window.windowHandle(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(shortcuts, 1);
    for (const auto key :
         {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Menu, Qt::Key_F1}) {
        QTest::keyClick(window.windowHandle(), key);
        EXPECT_EQ(window.focusWidget(), capture);
    }
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(window.focusWidget(), capture);
}

TEST_F(KeyCaptureTest, NavigationKeysWithModifiersAreRecorded) {
    startRecording();
    keyboard.type(tab, {control});
    keyboard.type(returnKey, {super});
    keyboard.type(down, {alt});
    EXPECT_EQ(
        combos,
        (std::vector{HotKeyCombo{48, 0x1000}, HotKeyCombo{36, 0x100}, HotKeyCombo{125, 0x800}}));
}

TEST_F(KeyCaptureTest, InputMethodsAreOff) {
    startRecording();
    EXPECT_FALSE(capture->testAttribute(Qt::WA_InputMethodEnabled));
    EXPECT_FALSE(capture->inputMethodQuery(Qt::ImEnabled).toBool());
}

TEST_F(KeyCaptureTest, FocusThatGoesToAnotherControlCancels) {
    startRecording();
    QTest::mouseClick(field, Qt::LeftButton);
    EXPECT_EQ(cancelled, 1);
}

TEST_F(KeyCaptureTest, WindowThatGoesAwayCancels) {
    startRecording();
    window.hide();
    EXPECT_EQ(cancelled, 1);
}

TEST_F(KeyCaptureTest, WindowThatIsNoLongerActiveKeepsTheRecordingButHoldsNoModifier) {
    startRecording();
    keyboard.press(control);
    QWidget panel;
    panel.show();
    panel.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    EXPECT_EQ(cancelled, 0);
    EXPECT_EQ(modifiers.back(), modifier::none);
    panel.hide();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(QApplication::focusWidget(), capture);
    PhysicalKeyboard afresh(window);
    afresh.type(d, {super});
    EXPECT_EQ(combos, (std::vector{HotKeyCombo{2, 0x100}}));
}

} // namespace
} // namespace quorvane
