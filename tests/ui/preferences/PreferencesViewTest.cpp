// SPDX-License-Identifier: MIT
#include "PreferencesFixture.h"

#include <controls/KeyCap.h>

#include <QShortcut>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace physicalkey;

const auto menuBar = u"Show icon in system tray"_s;
const auto dock = u"Show windows in taskbar"_s;
const auto wayBack = u"Open Quorvane from the applications menu to reach Preferences."_s;
const auto remember = u"Remember format and zones"_s;

class PreferencesViewTest : public PreferencesFixture {
protected:
    ShortcutRecorder& recorder() {
        return find<ShortcutRecorder>(QAccessible::Grouping, u"Invoke Quorvane"_s);
    }

    void startRecording() {
        QTest::mouseClick(&button(u"Record new shortcut"_s), Qt::LeftButton);
        queue.run();
        ASSERT_TRUE(recorder().isRecording());
    }
};

TEST_F(PreferencesViewTest, SaysWhatItIsAbout) {
    for (const auto& text :
         {u"Keyboard Shortcut"_s,
          u"Invoke Quorvane"_s,
          u"Requires at least one modifier key (Ctrl, Alt, Shift, Super)."_s,
          u"Tray & Taskbar"_s,
          menuBar,
          dock,
          u"Favorite Time Zones"_s,
          u"Favorites appear as one-click chips in the popover."_s})
        EXPECT_TRUE(shows(text)) << text.toStdString();
    EXPECT_EQ(field().placeholderText(), u"Search"_s);
}

TEST_F(PreferencesViewTest, HeadingsNameTheirGroups) {
    const auto groupOf = [](const QWidget& control) {
        auto* interface = QAccessible::queryAccessibleInterface(control.parentWidget());
        while (interface != nullptr && interface->role() != QAccessible::Grouping)
            interface = interface->parent();
        return interface != nullptr ? interface->text(QAccessible::Name) : QString();
    };
    EXPECT_EQ(groupOf(recorder()), u"Keyboard Shortcut"_s);
    EXPECT_EQ(groupOf(box(menuBar)), u"Tray & Taskbar"_s);
    EXPECT_EQ(groupOf(box(remember)), u"General"_s);
    EXPECT_EQ(groupOf(list()), u"Favorite Time Zones"_s);
}

TEST_F(PreferencesViewTest, RecordedShortcutIsShownAndHandedOn) {
    EXPECT_EQ(view->editingCombo(), HotKeyCombo());
    startRecording();
    keyboard->type(k, {alt, super});
    queue.run();
    const HotKeyCombo recorded{40, 0x900};
    EXPECT_EQ(view->editingCombo(), recorded);
    EXPECT_EQ(changes, std::vector{recorded});
    EXPECT_EQ(model->hotKey(), recorded);
    EXPECT_EQ(recorder().keys(), (QStringList{u"Alt"_s, u"Super"_s, u"K"_s}));
}

TEST_F(PreferencesViewTest, SameShortcutIsHandedOnAgain) {
    startRecording();
    keyboard->type(d, {control, shift, super});
    EXPECT_EQ(changes, std::vector{HotKeyCombo()});
}

TEST_F(PreferencesViewTest, OpensAgainWithTheModelsShortcut) {
    view->hide();
    model->setHotKey({40, 0x100});
    view->show();
    EXPECT_EQ(view->editingCombo(), (HotKeyCombo{40, 0x100}));
    EXPECT_EQ(recorder().keys(), (QStringList{u"Super"_s, u"K"_s}));
}

TEST_F(PreferencesViewTest, OpensAgainAsItWasLeft) {
    QTest::keyClicks(&field(), u"york"_s);
    starredOnly().click();
    view->hide();
    view->show();
    EXPECT_EQ(field().text(), u"york"_s);
    EXPECT_TRUE(starredOnly().isChecked());
    EXPECT_EQ(count(), 1);
}

TEST_F(PreferencesViewTest, HidingCancelsARecording) {
    startRecording();
    keyboard->press(control);
    view->hide();
    EXPECT_FALSE(recorder().isRecording());
    EXPECT_TRUE(changes.empty());
}

TEST_F(PreferencesViewTest, GoingAwayWhileRecordingHarmsNobody) {
    startRecording();
    view.reset();
    queue.run();
    EXPECT_TRUE(changes.empty());
}

TEST_F(PreferencesViewTest, EscapeBelongsToTheRecordingThenToTheWindow) {
    int closed = 0;
    const auto* close = new QShortcut(QKeySequence::Cancel, view.get());
    QObject::connect(close, &QShortcut::activated, [&] { ++closed; });
    startRecording();
    QTest::keyClick(view->windowHandle(), Qt::Key_Escape);
    queue.run();
    EXPECT_FALSE(recorder().isRecording());
    EXPECT_EQ(closed, 0);
    QTest::keyClicks(&field(), u"york"_s);
    QTest::keyClick(view->windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(field().text(), u"york"_s);
}

TEST_F(PreferencesViewTest, ShortcutThatIsHeldElsewhereIsToldWhenTheViewOpensOrChangesIt) {
    activity = ShortcutRecorder::Activity::HeldElsewhere;
    view->hide();
    view->show();
    EXPECT_TRUE(recorder().accessibleDescription().contains(u"Another program"_s));
    activity = ShortcutRecorder::Activity::Active;
    startRecording();
    keyboard->type(k, {super});
    queue.run();
    EXPECT_FALSE(recorder().accessibleDescription().contains(u"Another program"_s));
}

TEST_F(PreferencesViewTest, WhatKeepsTheShortcutFromWorkingIsSaidInWords) {
    struct Row {
        ShortcutRecorder::Activity activity;
        QString words;
    };

    using enum ShortcutRecorder::Activity;
    const auto height = view->height();
    const auto top = list().mapTo(view.get(), QPoint()).y();
    for (const auto& [state, words] :
         {Row{HeldElsewhere, u"Another program holds this shortcut."_s},
          Row{NoSuchKey, u"This keyboard has no such key."_s},
          Row{Unavailable, u"Global shortcuts are not available on this desktop."_s}}) {
        activity = state;
        view->refreshSoon();
        queue.run();
        EXPECT_TRUE(shows(words)) << words.toStdString();
        EXPECT_EQ(view->height(), height);
    }
    activity = Active;
    view->refreshSoon();
    queue.run();
    EXPECT_FALSE(shows(u"Global shortcuts are not available on this desktop."_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return list().mapTo(view.get(), QPoint()).y() == top; }))
        << "it leaves no gap";
}

TEST_F(PreferencesViewTest, WhatARecordedShortcutCostsIsSaidInWords) {
    startRecording();
    keyboard->type(k, {shift});
    queue.run();
    const auto words = u"While this is the shortcut, you cannot type a capital K anywhere."_s;
    EXPECT_TRUE(shows(words));
    startRecording();
    EXPECT_TRUE(shows(words)) << "nothing moves while another one is pressed";
    keyboard->type(k, {control});
    queue.run();
    EXPECT_FALSE(shows(words));
}

TEST_F(PreferencesViewTest, LabelsFollowTheKeyboardLayoutInALaterIteration) {
    layout.setKey(2, u"e");
    view->refreshSoon();
    queue.run();
    QStringList labels;
    for (const auto* cap : recorder().findChildren<KeyCap*>()) {
        if (cap->isVisible())
            labels.append(cap->text());
    }
    EXPECT_EQ(labels, (QStringList{u"Ctrl"_s, u"Shift"_s, u"Super"_s, u"E"_s}));
}

TEST_F(PreferencesViewTest, SwitchesWriteTheModelAtOnce) {
    EXPECT_TRUE(box(menuBar).isChecked());
    EXPECT_FALSE(box(dock).isChecked());
    QTest::mouseClick(&box(dock), Qt::LeftButton);
    EXPECT_TRUE(model->showInDock());
    EXPECT_TRUE(defaults.boolForKey(setting::showInDock.key));
    QTest::keyClick(&box(menuBar), Qt::Key_Space);
    EXPECT_FALSE(model->showInMenuBar());
}

TEST_F(PreferencesViewTest, LabelOfASwitchTakesThePressToo) {
    QTest::mouseClick(label(dock), Qt::LeftButton);
    EXPECT_TRUE(model->showInDock());
    QTest::mousePress(label(dock), Qt::LeftButton);
    QTest::mouseRelease(label(dock), Qt::LeftButton, {}, {0, -100});
    EXPECT_TRUE(model->showInDock());
}

TEST_F(PreferencesViewTest, WayBackIsToldWhileBothIconsAreOff) {
    EXPECT_FALSE(shows(wayBack));
    box(menuBar).click();
    queue.run();
    EXPECT_TRUE(shows(wayBack));
    box(dock).click();
    queue.run();
    EXPECT_FALSE(shows(wayBack));
    box(dock).click();
    box(menuBar).click();
    queue.run();
    EXPECT_FALSE(shows(wayBack));
}

TEST_F(PreferencesViewTest, SwitchesFollowTheModel) {
    model->setShowInDock(true);
    model->setShowInMenuBar(false);
    EXPECT_FALSE(box(dock).isChecked());
    queue.run();
    EXPECT_TRUE(box(dock).isChecked());
    EXPECT_FALSE(box(menuBar).isChecked());
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(PreferencesViewTest, FormatAndZonesAreRememberedOnRequest) {
    EXPECT_FALSE(box(remember).isChecked());
    QTest::mouseClick(label(remember), Qt::LeftButton);
    EXPECT_TRUE(model->remembersChoices());
    EXPECT_TRUE(defaults.boolForKey(setting::remembersChoices.key));
    model->setRemembersChoices(false);
    queue.run();
    EXPECT_FALSE(box(remember).isChecked());
}

TEST_F(PreferencesViewTest, OpensReadyToSearch) {
    EXPECT_EQ(view->focusWidget(), &field());
    QTest::keyClicks(view->focusWidget(), u"kathmandu"_s);
    EXPECT_EQ(cities(), QStringList{u"Kathmandu"_s});
}

TEST_F(PreferencesViewTest, TabGoesFromTopToBottom) {
    button(u"Record new shortcut"_s).setFocus(Qt::TabFocusReason);
    const std::vector<QWidget*> order{
        &box(menuBar),
        &box(dock),
        &box(u"Start at login"_s),
        &box(remember),
        &field(),
        &starredOnly(),
        &list(),
        &button(u"Record new shortcut"_s)};
    for (const auto* next : order) {
        QTest::keyClick(view->windowHandle(), Qt::Key_Tab);
        EXPECT_EQ(view->focusWidget(), next) << next->accessibleName().toStdString();
    }
}

} // namespace
} // namespace quorvane
