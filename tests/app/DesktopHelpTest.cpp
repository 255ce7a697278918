// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <controls/FocusRing.h>
#include <hotkey/BindingLine.h>
#include <hotkey/ShortcutChord.h>
#include <support/PhysicalKeyboard.h>
#include <support/WidgetSearch.h>

#include <QAbstractButton>
#include <QTest>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr KeyChord standard{2, modifier::control | modifier::shift | modifier::command};
constexpr KeyChord other{40, modifier::control | modifier::option};

/// A desktop that does nothing unasked: neither the shortcut nor typing.
class DesktopHelpTest : public DelegateFixture {
protected:
    DesktopHelpTest() {
        taps->refuse(TapFailure{u"this desktop has none"_s});
        right->setCanPrompt();
        right->setTyping(TypingRight::NotAsked);
    }

    void showPreferences() {
        delegate->showPreferences();
        queue.run();
    }

    static QWidget* found(QAccessible::Role role, const QString& name) {
        auto* widget = widgetByRole(*preferences(), role, name);
        return widget != nullptr && widget->isVisible() ? widget : nullptr;
    }

    static QAbstractButton* button(const QString& name) {
        return qobject_cast<QAbstractButton*>(found(QAccessible::Button, name));
    }

    static bool hints() {
        const auto* hint = widgetByRole(*panel(), QAccessible::Grouping, u"Hint"_s);
        return hint != nullptr && hint->isVisibleTo(panel());
    }

    static bool shows(const QString& text) {
        return found(QAccessible::StaticText, text) != nullptr;
    }
};

TEST_F(DesktopHelpTest, AllowingAsksTheDesktopAndIsRememberedForLaterRuns) {
    launch();
    showPreferences();
    ASSERT_NE(button(u"Allow…"_s), nullptr);
    button(u"Allow…"_s)->click();
    queue.run();
    EXPECT_EQ(right->typing(), TypingRight::Asking);
    EXPECT_TRUE(delegate->model().wantsTyping());
    EXPECT_TRUE(shows(u"Waiting for your answer"_s));
    right->setTyping(TypingRight::Granted);
    queue.run();
    EXPECT_TRUE(shows(u"Allowed"_s));
    EXPECT_EQ(button(u"Allow…"_s), nullptr);
    right->setTyping(TypingRight::Stopped);
    queue.run();
    EXPECT_TRUE(shows(u"Stopped by your desktop; Insert copies instead"_s));
}

TEST_F(DesktopHelpTest, NotificationLeadsToTheButtonThatAllowsTyping) {
    launch();
    queue.run();
    delegate->performAction(u"insert"_s);
    queue.advance(std::chrono::seconds(2));
    ASSERT_TRUE(notifications->shown && notifications->shown->action);
    EXPECT_EQ(notifications->shown->action->label, u"Allow typing…"_s);
    notifications->shown->action->perform();
    queue.run();
    ASSERT_TRUE(isShown(preferences()));
    ASSERT_NE(button(u"Allow…"_s), nullptr);
    EXPECT_EQ(preferences()->focusWidget(), button(u"Allow…"_s));
    EXPECT_EQ(FocusRing::lastInput(*preferences()), InputDevice::Keyboard) << "the focus is seen";
    EXPECT_EQ(right->typing(), TypingRight::NotAsked) << "only by a press of it";
}

TEST_F(DesktopHelpTest, EntryInTheDesktopsListFollowsWhatIsRecorded) {
    desktopShortcut->setDesktopName(u"GNOME"_s);
    launch();
    showPreferences();
    button(u"Add to GNOME shortcuts"_s)->click();
    queue.run();
    EXPECT_TRUE(shows(u"It is in the shortcuts of GNOME."_s));
    EXPECT_EQ(desktopShortcut->bound(), standard);
    button(u"Record new shortcut"_s)->click();
    queue.run();
    PhysicalKeyboard keyboard(*preferences());
    keyboard.type(physicalkey::k, {physicalkey::control, physicalkey::alt});
    queue.run();
    EXPECT_EQ(desktopShortcut->bound(), other);
}

TEST_F(DesktopHelpTest, ShortcutChangedInTheDesktopsListIsOurs) {
    desktopShortcut->setDesktopName(u"GNOME"_s);
    launch();
    showPreferences();
    button(u"Add to GNOME shortcuts"_s)->click();
    queue.run();
    desktopShortcut->rebind(other);
    queue.run();
    EXPECT_EQ(delegate->model().hotKey(), comboOf(other));
    EXPECT_TRUE(shows(u"It is in the shortcuts of GNOME."_s));
    const auto isOfTheList = [](const auto& call) {
        return call.what == "bind" || call.what == "unbind";
    };
    EXPECT_EQ(std::ranges::count_if(log.calls(), isOfTheList), 1) << "the list is the desktop's";
}

TEST_F(DesktopHelpTest, RecordedShortcutOfAnotherCommandLeavesTheEntryAlone) {
    desktopShortcut->setDesktopName(u"GNOME"_s);
    desktopShortcut->setHolder(other, u"Terminal"_s);
    launch();
    showPreferences();
    button(u"Add to GNOME shortcuts"_s)->click();
    button(u"Record new shortcut"_s)->click();
    queue.run();
    PhysicalKeyboard keyboard(*preferences());
    keyboard.type(physicalkey::k, {physicalkey::control, physicalkey::alt});
    queue.run();
    EXPECT_EQ(desktopShortcut->bound(), standard);
    EXPECT_TRUE(shows(u"In the shortcuts of GNOME, this one belongs to “Terminal”."_s));
}

TEST_F(DesktopHelpTest, LineForAConfigurationGoesToTheClipboard) {
    launch();
    showPreferences();
    ASSERT_NE(button(u"Copy"_s), nullptr);
    button(u"Copy"_s)->click();
    EXPECT_EQ(pasteboard->contents(), plainText(toggleCommand()));
    EXPECT_TRUE(shows(u"Copied"_s));
}

TEST_F(DesktopHelpTest, PanelSaysThatNoShortcutWorksAndLeadsToWhereItIsSetUp) {
    desktopShortcut->setDesktopName(u"GNOME"_s);
    launch();
    queue.advance(ShortcutHint::patience);
    ASSERT_TRUE(hints());
    auto* setUp = widgetByRole(*panel(), QAccessible::Button, u"Set Up…"_s);
    qobject_cast<QAbstractButton*>(setUp)->click();
    queue.run();
    EXPECT_EQ(preferences()->focusWidget(), button(u"Add to GNOME shortcuts"_s));
    button(u"Add to GNOME shortcuts"_s)->click();
    EXPECT_EQ(widgetByRole(*panel(), QAccessible::Button, u"Set Up…"_s), nullptr)
        << "there is one now";
    desktopShortcut->setBound(std::nullopt);
    EXPECT_NE(widgetByRole(*panel(), QAccessible::Button, u"Set Up…"_s), nullptr);
}

TEST_F(DesktopHelpTest, HintThatIsDismissedNeverComesBack) {
    launch();
    queue.advance(ShortcutHint::patience);
    auto* dismiss = widgetByRole(*panel(), QAccessible::Button, u"Do not show this again"_s);
    ASSERT_NE(dismiss, nullptr);
    qobject_cast<QAbstractButton*>(dismiss)->click();
    EXPECT_FALSE(hints());
    EXPECT_TRUE(setting::shortcutHintDismissed.valueIn(defaults));
    makeDelegate();
    taps->refuse(TapFailure{u"this desktop has none"_s});
    launch();
    queue.advance(ShortcutHint::patience);
    EXPECT_FALSE(hints());
}

TEST_F(DesktopHelpTest, KeyThatCallsTheProgramByItsNameEndsTheHint) {
    launch();
    queue.advance(ShortcutHint::patience);
    ASSERT_TRUE(hints());
    delegate->performAction(u"toggle"_s);
    delegate->performAction(u"toggle"_s);
    EXPECT_FALSE(hints());
    EXPECT_TRUE(setting::shortcutHintDismissed.valueIn(defaults));
}

TEST_F(DesktopHelpTest, NoHintBeforeTheDesktopHasToldItsList) {
    launch();
    EXPECT_FALSE(hints());
}

TEST_F(DesktopHelpTest, ServicesThatAreNotWholeAreExplained) {
    platform.states = {
        {DesktopService::Panel, false, u"The panel stands where the desktop puts it."_s}};
    launch();
    showPreferences();
    EXPECT_TRUE(shows(u"The panel stands where the desktop puts it."_s));
}

} // namespace
} // namespace quorvane
