// SPDX-License-Identifier: MIT
#include "TranslationFixture.h"

#include <hotkey/ShortcutChord.h>

#include <QMenu>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// On a desktop that does nothing unasked: neither the shortcut nor typing.
class TranslatedHelpTest : public TranslationFixture {
protected:
    TranslatedHelpTest() {
        makeDelegate();
        taps->refuse(TapFailure{u"this desktop has none"_s});
        right->setCanPrompt();
        right->setTyping(TypingRight::NotAsked);
        // What desktops, window managers and their configurations call themselves.
        addData(
            u"GNOME Lock screen sway Hyprland river i3 niri gdbus call session d org quorvane o "
            u"m freedesktop Application ActivateAction toggle e F5"_s);
    }

    void showPreferences() {
        delegate->showPreferences();
        queue.run();
    }
};

TEST_F(TranslatedHelpTest, OfTheHint) {
    launch();
    queue.advance(std::chrono::seconds(10));
    ASSERT_TRUE(visibleTexts(*panel()).contains(PseudoTexts::pseudo(u"Hint"_s)));
    expectTranslated(panel());
}

TEST_F(TranslatedHelpTest, OfALineForAConfiguration) {
    launch();
    showPreferences();
    expectTranslated(preferencesWindow());
    press(*preferencesWindow(), u"Copy"_s);
    expectTranslated(preferencesWindow());
}

TEST_F(TranslatedHelpTest, OfADesktopsListOfShortcuts) {
    desktopShortcut->setDesktopName(u"GNOME"_s);
    launch();
    showPreferences();
    expectTranslated(preferencesWindow());
    const auto wanted = *chordOf(delegate->model().hotKey());
    desktopShortcut->setBound(wanted);
    expectTranslated(preferencesWindow());
    desktopShortcut->setBound(KeyChord{keycode::f5, modifier::command});
    expectTranslated(preferencesWindow());
    desktopShortcut->setHolder(wanted, u"Lock screen"_s);
    desktopShortcut->setBound(std::nullopt);
    expectTranslated(preferencesWindow());
}

TEST_F(TranslatedHelpTest, OfTheRightToType) {
    launch();
    showPreferences();
    for (const auto answer :
         {TypingRight::Asking,
          TypingRight::Refused,
          TypingRight::Stopped,
          TypingRight::Granted,
          TypingRight::Unavailable}) {
        right->setTyping(answer);
        expectTranslated(preferencesWindow());
    }
}

TEST_F(TranslatedHelpTest, OfNotifications) {
    launch();
    queue.run();
    delegate->performAction(u"insert"_s);
    queue.advance(std::chrono::seconds(2));
    ASSERT_TRUE(notifications->shown && notifications->shown->action);
    expectTranslated(
        {notifications->shown->title,
         notifications->shown->body,
         notifications->shown->action->label});
}

TEST_F(TranslatedHelpTest, OfTheIconsToolTip) {
    notifications->hasServer = false;
    launch();
    delegate->performAction(u"insert"_s);
    queue.advance(std::chrono::seconds(2));
    EXPECT_FALSE(statusBar->toolTip.isEmpty());
    expectTranslated({statusBar->toolTip});
}

TEST_F(TranslatedHelpTest, OfARefusedDate) {
    launch();
    queue.run();
    auto* date = controls(*panel(), "quorvane::FieldChip").front();
    QTest::mouseClick(date, Qt::LeftButton);
    QTest::keyClicks(date->openedSurface()->focusWidget(), u"9"_s);
    QTest::keyClicks(date->openedSurface()->focusWidget(), u"99999999"_s);
    ASSERT_TRUE(
        visibleTexts(*date->openedSurface()).contains(PseudoTexts::pseudo(u"Not a date"_s)));
    expectTranslated(date->openedSurface());
}

TEST_F(TranslatedHelpTest, OfThePatternsPage) {
    addData(u"EEEE EEE MMMM MMM d YYYY W ww QQQ at h a o clock HHmmss yyyyMMdd ss xxx zzz"_s);
    // The moment of the sample in these patterns.
    addData(u"Saturday Sat March Mar Q AM PM EST"_s);
    delegate->model().setFormatPreset(DateFormatPreset::Custom);
    launch();
    queue.run();
    expectTranslatedBehind(*panel(), "quorvane::PatternHelpButton", 1);
}

} // namespace
} // namespace quorvane
