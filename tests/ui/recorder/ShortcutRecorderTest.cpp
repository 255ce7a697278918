// SPDX-License-Identifier: MIT
#include <controls/FocusRing.h>
#include <controls/KeyCap.h>
#include <controls/PressableControl.h>
#include <controls/Theme.h>
#include <recorder/KeyCapture.h>
#include <recorder/ShortcutRecorder.h>
#include <support/PhysicalKeyboard.h>
#include <support/WidgetSearch.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/VirtualMainQueue.h>

#include <QHBoxLayout>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace physicalkey;

const auto record = u"Record new shortcut"_s;
const auto cancel = u"Cancel"_s;

class ShortcutRecorderTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    FakeKeyboardLayout layout;
    HotKeyCombo combo;
    std::vector<HotKeyCombo> writes;
    bool wasRecordingAtWrite = false;
    QWidget window;
    PhysicalKeyboard keyboard{window};
    ShortcutRecorder* recorder = nullptr;

    ShortcutRecorderTest() {
        layout.setKey(2, u"d");
        layout.setKey(40, u"k");
        window.setPalette(builtInPalette(ColorScheme::Light));
        recorder = new ShortcutRecorder(
            {[this] { return combo; },
             [this](HotKeyCombo recorded) {
                 combo = recorded;
                 writes.push_back(recorded);
                 wasRecordingAtWrite = recorder->isRecording();
             }},
            layout,
            queue,
            &window);
        auto* row = new QHBoxLayout(&window);
        row->addWidget(recorder);
        window.resize(300, 60);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    PressableControl& button(const QString& name) {
        auto* found =
            qobject_cast<PressableControl*>(widgetByRole(window, QAccessible::Button, name));
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }

    void startRecording() {
        QTest::mouseClick(&button(record), Qt::LeftButton);
        queue.run();
        ASSERT_TRUE(recorder->isRecording());
    }

    /// From the leading edge.
    std::vector<KeyCap*> caps() {
        recorder->layout()->activate();
        std::vector<KeyCap*> sorted;
        for (auto* cap : recorder->findChildren<KeyCap*>()) {
            cap->parentWidget()->layout()->activate();
            if (cap->isVisible())
                sorted.push_back(cap);
        }
        std::ranges::sort(sorted, {}, [this](const auto* cap) { return start(cap); });
        return sorted;
    }

    int start(const KeyCap* cap) const { return cap->mapTo(recorder, QPoint()).x(); }

    QStringList shown() {
        QStringList labels;
        for (const auto* cap : caps())
            labels.append(cap->text());
        return labels;
    }

    QStringList spoken() {
        QStringList names;
        for (auto* cap : caps())
            names.append(QAccessible::queryAccessibleInterface(cap)->text(QAccessible::Name));
        return names;
    }

    QString description() {
        return QAccessible::queryAccessibleInterface(recorder)->text(QAccessible::Description);
    }
};

TEST_F(ShortcutRecorderTest, ShowsTheShortcutWhileIdle) {
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_EQ(recorder->previewMods(), modifier::none);
    EXPECT_EQ(shown(), (QStringList{u"Ctrl"_s, u"Shift"_s, u"Super"_s, u"D"_s}));
    EXPECT_EQ(button(record).toolTip(), record);
}

TEST_F(ShortcutRecorderTest, ButtonStartsARecordingThatShowsWhatIsHeld) {
    startRecording();
    EXPECT_EQ(shown(), QStringList{u"…"_s});
    EXPECT_EQ(button(cancel).toolTip(), cancel);
    keyboard.press(control);
    keyboard.press(super);
    EXPECT_EQ(recorder->previewMods(), modifier::control | modifier::command);
    EXPECT_EQ(shown(), (QStringList{u"Ctrl"_s, u"Super"_s, u"…"_s}));
    keyboard.press(shift);
    keyboard.press(alt);
    EXPECT_EQ(shown(), (QStringList{u"Ctrl"_s, u"Alt"_s, u"Shift"_s, u"Super"_s, u"…"_s}));
    keyboard.release(control);
    EXPECT_EQ(shown(), (QStringList{u"Alt"_s, u"Shift"_s, u"Super"_s, u"…"_s}));
}

TEST_F(ShortcutRecorderTest, PlainKeyChangesNothing) {
    startRecording();
    keyboard.type(d);
    EXPECT_TRUE(recorder->isRecording());
    EXPECT_EQ(shown(), QStringList{u"…"_s});
    EXPECT_TRUE(writes.empty());
}

TEST_F(ShortcutRecorderTest, CapsLockReachesThePreviewAndShowsNothing) {
    startRecording();
    keyboard.press(capsLock);
    EXPECT_EQ(recorder->previewMods(), modifier::capsLock);
    EXPECT_EQ(shown(), QStringList{u"…"_s});
    keyboard.type(d);
    EXPECT_TRUE(recorder->isRecording());
}

TEST_F(ShortcutRecorderTest, KeyWithModifiersIsTheNewShortcut) {
    startRecording();
    keyboard.type(k, {alt, super});
    EXPECT_EQ(writes, (std::vector{HotKeyCombo{40, 0x900}}));
    EXPECT_TRUE(wasRecordingAtWrite);
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_EQ(recorder->previewMods(), modifier::none);
    EXPECT_EQ(shown(), (QStringList{u"Alt"_s, u"Super"_s, u"K"_s}));
}

TEST_F(ShortcutRecorderTest, SameShortcutAgainIsWrittenAgain) {
    for (int times = 1; times <= 2; ++times) {
        startRecording();
        keyboard.type(d, {control, shift, super});
        queue.run();
        EXPECT_EQ(writes.size(), static_cast<std::size_t>(times));
    }
    EXPECT_EQ(writes.back(), HotKeyCombo());
}

TEST_F(ShortcutRecorderTest, HeldKeyIsRecordedOnce) {
    startRecording();
    keyboard.press(control);
    keyboard.press(k);
    keyboard.repeat(k);
    queue.run();
    keyboard.repeat(k);
    EXPECT_EQ(writes.size(), 1U);
    EXPECT_FALSE(recorder->isRecording());
}

TEST_F(ShortcutRecorderTest, EscapeLeavesTheOldShortcut) {
    startRecording();
    keyboard.press(shift);
    keyboard.type(escape);
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_EQ(recorder->previewMods(), modifier::none);
    EXPECT_TRUE(writes.empty());
    EXPECT_EQ(shown(), (QStringList{u"Ctrl"_s, u"Shift"_s, u"Super"_s, u"D"_s}));
}

TEST_F(ShortcutRecorderTest, ButtonEndsTheRecordingAndLeavesTheOldShortcut) {
    startRecording();
    keyboard.press(control);
    QTest::mouseClick(&button(cancel), Qt::LeftButton);
    EXPECT_FALSE(recorder->isRecording());
    EXPECT_EQ(recorder->previewMods(), modifier::none);
    EXPECT_TRUE(writes.empty());
}

TEST_F(ShortcutRecorderTest, FocusIsAtTheButtonAfterwards) {
    for (const auto& end : {escape, PhysicalKey{KEY_K, Qt::Key_K}}) {
        startRecording();
        keyboard.type(end, {control});
        queue.run();
        EXPECT_EQ(window.focusWidget(), &button(record));
        EXPECT_TRUE(button(record).isVisible());
    }
    startRecording();
    QTest::mouseClick(&button(cancel), Qt::LeftButton);
    queue.run();
    EXPECT_EQ(window.focusWidget(), &button(record));
}

TEST_F(ShortcutRecorderTest, KeyboardAloneRecords) {
    button(record).setFocus(Qt::TabFocusReason);
    keyboard.press(returnKey);
    queue.run();
    keyboard.repeat(returnKey);
    keyboard.release(returnKey);
    ASSERT_TRUE(recorder->isRecording());
    keyboard.type(returnKey, {super});
    queue.run();
    EXPECT_EQ(writes, (std::vector{HotKeyCombo{36, 0x100}}));
    EXPECT_FALSE(recorder->isRecording());
}

TEST_F(ShortcutRecorderTest, HidingTheWindowEndsTheRecording) {
    startRecording();
    window.hide();
    EXPECT_FALSE(recorder->isRecording());
    queue.run();
    window.show();
    EXPECT_EQ(window.focusWidget(), &button(record));
}

TEST_F(ShortcutRecorderTest, IsDescribedByTheNamesOfItsKeys) {
    EXPECT_EQ(QAccessible::queryAccessibleInterface(recorder)->role(), QAccessible::Grouping);
    EXPECT_EQ(description(), u"Control, Shift, Super, D"_s);
    EXPECT_EQ(spoken(), (QStringList{u"Control"_s, u"Shift"_s, u"Super"_s, u"D"_s}));
    EXPECT_EQ(button(record).accessibleDescription(), description());
    startRecording();
    EXPECT_EQ(description(), u"Recording: Waiting for a key"_s);
    keyboard.press(control);
    EXPECT_EQ(description(), u"Recording: Control, Waiting for a key"_s);
    keyboard.press(super);
    keyboard.type(f5);
    EXPECT_TRUE(description().startsWith(u"Control, Super, F5"_s));
    EXPECT_EQ(shown().back(), u"F5"_s);
    EXPECT_EQ(spoken().back(), u"F5"_s);
}

TEST_F(ShortcutRecorderTest, RecordingIsToldByWhatHasTheFocus) {
    startRecording();
    const auto* focused = QAccessible::queryAccessibleInterface(window.focusWidget());
    EXPECT_EQ(focused->text(QAccessible::Name), u"Recording a new shortcut"_s);
    EXPECT_NE(focused->text(QAccessible::Description), QString());
    EXPECT_EQ(focused->role(), QAccessible::HotkeyField);
}

TEST_F(ShortcutRecorderTest, ShortcutOfAnotherProgramIsSaidNotToBeActive) {
    recorder->setStatus({ShortcutRecorder::Activity::HeldElsewhere, {}});
    const auto warning = u"Another program holds this shortcut."_s;
    EXPECT_EQ(recorder->notice(), warning);
    EXPECT_EQ(description(), u"Control, Shift, Super, D. "_s + warning);
    recorder->setStatus({ShortcutRecorder::Activity::HeldElsewhere, u"KWin"_s});
    EXPECT_EQ(recorder->notice(), u"KWin holds this shortcut."_s);
    startRecording();
    EXPECT_EQ(description(), u"Recording: Waiting for a key"_s);
    keyboard.type(escape);
    recorder->setStatus({ShortcutRecorder::Activity::Unavailable, {}});
    EXPECT_EQ(recorder->notice(), u"Global shortcuts are not available on this desktop."_s);
    recorder->setStatus({ShortcutRecorder::Activity::NoSuchKey, {}});
    EXPECT_EQ(recorder->notice(), u"This keyboard has no such key."_s);
    recorder->setStatus({ShortcutRecorder::Activity::Active, {}});
    EXPECT_EQ(recorder->notice(), QString());
    EXPECT_EQ(description(), u"Control, Shift, Super, D"_s);
}

TEST_F(ShortcutRecorderTest, OneTooltipOverTheRowOfCapsSaysTheWholeShortcut) {
    ASSERT_EQ(caps().size(), 4U);
    auto* row = caps().front()->parentWidget();
    EXPECT_EQ(row->toolTip(), u"Ctrl+Shift+Super+D"_s);
    for (const auto* cap : caps()) {
        EXPECT_EQ(cap->parentWidget(), row);
        EXPECT_EQ(cap->toolTip(), QString());
    }
    startRecording();
    EXPECT_EQ(row->toolTip(), QString());
}

TEST_F(ShortcutRecorderTest, ShortcutWithSuperSaysThatADesktopsMenuMayComeFirst) {
    EXPECT_EQ(recorder->notice(), QString()) << "nothing was recorded here";
    startRecording();
    keyboard.type(k, {control, super});
    const auto notice = u"If your desktop opens a menu on Super alone, press Super last: pressed "
                        "first, it opens that menu instead."_s;
    EXPECT_EQ(recorder->notice(), notice);
    EXPECT_EQ(description(), u"Control, Super, K. "_s + notice);
    for (const auto* cap : caps())
        EXPECT_EQ(cap->accessibleDescription(), QString()) << "it would be read several times";
    startRecording();
    keyboard.type(k, {control, alt});
    EXPECT_EQ(recorder->notice(), QString());
}

TEST_F(ShortcutRecorderTest, ShiftAloneIsTakenAndSaidToCostTheCapital) {
    startRecording();
    keyboard.type(k, {shift});
    ASSERT_EQ(writes, (std::vector{HotKeyCombo{40, 0x200}}));
    EXPECT_EQ(
        recorder->notice(), u"While this is the shortcut, you cannot type a capital K anywhere."_s);
    startRecording();
    keyboard.type(f5, {shift});
    EXPECT_EQ(recorder->notice(), QString()) << "Shift+F5 types nothing";
}

TEST_F(ShortcutRecorderTest, ShiftWithASignIsSaidToCostThatSign) {
    layout.setKey(18, u"1");
    combo = {18, 0x200};
    EXPECT_EQ(
        recorder->notice(), u"While this is the shortcut, you cannot type what Shift+1 types."_s);
    combo = {49, 0x200};
    EXPECT_EQ(recorder->notice(), QString()) << "Space types a space without Shift, too";
}

TEST_F(ShortcutRecorderTest, LabelsFollowTheLayout) {
    layout.setKey(2, u"e");
    recorder->refresh();
    EXPECT_EQ(shown().back(), u"E"_s);
}

TEST_F(ShortcutRecorderTest, HasTheMeasuresOfTheDesign) {
    recorder->layout()->activate();
    EXPECT_EQ(recorder->size().height(), 32);
    EXPECT_EQ(start(caps().front()), 5);
    EXPECT_EQ(caps()[1]->x() - caps()[0]->geometry().right() - 1, 4);
    EXPECT_EQ(button(record).geometry(), QRect(recorder->width() - 3 - 26, 3, 26, 26));
}

TEST_F(ShortcutRecorderTest, FramesItselfWhileRecordingOnly) {
    const auto leftEdge = [this] {
        const auto image = recorder->grab().toImage();
        return image.pixelColor(1, image.height() / 2);
    };
    const auto& theme = Theme::builtIn(ColorScheme::Light);
    EXPECT_NE(leftEdge(), theme.accentText);
    startRecording();
    EXPECT_EQ(leftEdge(), theme.accentText);
}

TEST_F(ShortcutRecorderTest, MirrorsWhereTextRunsFromRightToLeft) {
    window.setLayoutDirection(Qt::RightToLeft);
    recorder->layout()->activate();
    EXPECT_EQ(button(record).x(), 3);
    EXPECT_EQ(caps().back()->text(), u"Ctrl"_s);
}

} // namespace
} // namespace quorvane
