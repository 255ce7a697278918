// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <support/PhysicalKeyboard.h>
#include <support/WidgetSearch.h>

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// A desktop on which everything works, and a user who sees the program for the first time.
class FirstStartTest : public DelegateFixture {
protected:
    FirstStartTest() { prepare(); }

    void prepare() {
        keyboardLayout->setKey(2, u"d");
        keyboardLayout->setKey(40, u"k");
    }

    /// What the line below the header says; empty while it does not show.
    static QString hint() {
        const auto* line = widgetByRole(*panel(), QAccessible::Grouping, u"Hint"_s);
        if (line == nullptr || !line->isVisibleTo(panel()))
            return {};
        return line->findChild<QLabel*>()->text();
    }

    static QAbstractButton* button(const QString& name) {
        return qobject_cast<QAbstractButton*>(widgetByRole(*panel(), QAccessible::Button, name));
    }

    void startAgain() {
        makeDelegate();
        prepare();
        launch();
        queue.advance(ShortcutHint::patience);
    }
};

const auto usual = u"Ctrl+Shift+Super+D opens Quorvane in any application."_s;

TEST_F(FirstStartTest, PanelSaysAtOnceWhichShortcutOpensIt) {
    launch();
    EXPECT_EQ(hint(), usual);
    queue.advance(ShortcutHint::patience);
    EXPECT_EQ(hint(), usual);
    startAgain();
    EXPECT_EQ(hint(), usual) << "until the user has seen to it";
}

TEST_F(FirstStartTest, WhoHasPressedTheShortcutKnowsIt) {
    launch();
    pressShortcut();
    pressShortcut();
    EXPECT_EQ(hint(), QString());
    EXPECT_TRUE(setting::shortcutHintDismissed.valueIn(defaults));
    startAgain();
    EXPECT_EQ(hint(), QString());
}

TEST_F(FirstStartTest, CallByTheBusIsNoPressOfIt) {
    launch();
    delegate->performAction(u"toggle"_s);
    delegate->performAction(u"toggle"_s);
    EXPECT_EQ(hint(), usual);
}

TEST_F(FirstStartTest, LineIsReachedAndDismissedByKeyboard) {
    launch();
    queue.run();
    auto* dismiss = button(u"Do not show this again"_s);
    ASSERT_NE(dismiss, nullptr);
    auto* before = panel()->focusWidget();
    ASSERT_NE(before, nullptr);
    for (int presses = 0; presses < 9 && panel()->focusWidget() != dismiss; ++presses)
        QTest::keyClick(panel()->focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(panel()->focusWidget(), dismiss);
    QTest::keyClick(dismiss, Qt::Key_Space);
    EXPECT_EQ(hint(), QString());
    EXPECT_TRUE(setting::shortcutHintDismissed.valueIn(defaults));
    ASSERT_NE(panel()->focusWidget(), nullptr);
    EXPECT_TRUE(panel()->focusWidget()->isVisible()) << "the focus is on something that shows";
}

TEST_F(FirstStartTest, ScreenReaderHearsTheSentenceAtTheButton) {
    launch();
    auto* change = button(u"Change…"_s);
    ASSERT_NE(change, nullptr);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(change)->text(QAccessible::Description), usual);
}

TEST_F(FirstStartTest, ChangeLeadsToTheShortcutInThePreferences) {
    launch();
    button(u"Change…"_s)->click();
    queue.run();
    ASSERT_TRUE(isShown(preferences()));
    auto* focused = preferences()->focusWidget();
    ASSERT_NE(focused, nullptr);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(focused)->text(QAccessible::Name),
        u"Record new shortcut"_s);
    qobject_cast<QAbstractButton*>(focused)->click();
    queue.run();
    PhysicalKeyboard keyboard(*preferences());
    keyboard.type(physicalkey::k, {physicalkey::control, physicalkey::alt});
    queue.run();
    delegate->surfaceMainUIForReopen();
    EXPECT_EQ(hint(), u"Ctrl+Alt+K opens Quorvane in any application."_s);
}

TEST_F(FirstStartTest, ShortcutThatAnotherProgramHasIsSaidNotToWork) {
    taps->setHeldElsewhere(true);
    launch();
    EXPECT_EQ(hint(), QString()) << "it may come within the first second";
    queue.advance(ShortcutHint::patience);
    EXPECT_EQ(hint(), u"The shortcut that opens Quorvane does not work here."_s);
    EXPECT_NE(button(u"Set Up…"_s), nullptr);
}

TEST_F(FirstStartTest, EntryInTheDesktopsListIsSaidToOpenIt) {
    taps->refuse(TapFailure{u"this desktop has none"_s});
    desktopShortcut->setDesktopName(u"GNOME"_s);
    desktopShortcut->setBound(KeyChord{40, modifier::control | modifier::option});
    launch();
    queue.advance(ShortcutHint::patience);
    EXPECT_EQ(hint(), u"Ctrl+Alt+K opens Quorvane in any application."_s);
    delegate->performAction(u"toggle"_s);
    EXPECT_EQ(hint(), QString()) << "its key calls the program by the bus";
}

} // namespace
} // namespace quorvane
