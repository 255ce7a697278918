// SPDX-License-Identifier: MIT
#include <settings/SettingsTable.h>
#include <testing/MemoryDefaults.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(SettingsTable, EveryRowHasItsKeyAndDefault) {
    const MemoryDefaults empty;
    EXPECT_EQ(setting::favoriteZones.key, "favoriteTZs"_L1);
    EXPECT_EQ(setting::favoriteZones.storedIn(empty), std::nullopt);
    EXPECT_EQ(setting::showInMenuBar.key, "showInMenuBar"_L1);
    EXPECT_TRUE(setting::showInMenuBar.valueIn(empty));
    EXPECT_EQ(setting::showInDock.key, "showInDock"_L1);
    EXPECT_FALSE(setting::showInDock.valueIn(empty));
    EXPECT_EQ(setting::presentationMode.key, "presentationMode"_L1);
    EXPECT_EQ(setting::presentationMode.valueIn(empty), u"Window"_s);
    EXPECT_EQ(setting::hotKeyCode.key, "hotKeyCode"_L1);
    EXPECT_EQ(setting::hotKeyCode.valueIn(empty), 2);
    EXPECT_EQ(setting::hotKeyModifiers.key, "hotKeyModifiers"_L1);
    EXPECT_EQ(setting::hotKeyModifiers.valueIn(empty), 4864); // Control, Shift and Command
    EXPECT_EQ(setting::wantsTyping.key, "allowTyping"_L1);
    EXPECT_FALSE(setting::wantsTyping.valueIn(empty));
    EXPECT_EQ(setting::shortcutHintDismissed.key, "shortcutHintDismissed"_L1);
    EXPECT_FALSE(setting::shortcutHintDismissed.valueIn(empty));
    EXPECT_EQ(setting::typingToken.key, "typingToken"_L1);
    EXPECT_EQ(setting::typingToken.valueIn(empty), QString());
    EXPECT_EQ(setting::portalShortcut.key, "portalShortcut"_L1);
    EXPECT_FALSE(setting::portalShortcut.valueIn(empty));
    EXPECT_EQ(setting::portalAutostart.key, "portalAutostart"_L1);
    EXPECT_FALSE(setting::portalAutostart.valueIn(empty));
}

TEST(SettingsTable, EveryRememberedChoiceHasItsKeyAndDefault) {
    const MemoryDefaults empty;
    EXPECT_EQ(setting::remembersChoices.key, "rememberFormatAndZones"_L1);
    EXPECT_FALSE(setting::remembersChoices.valueIn(empty));
    EXPECT_EQ(setting::formatPreset.key, "formatPreset"_L1);
    EXPECT_EQ(setting::formatPreset.valueIn(empty), u"Long"_s);
    EXPECT_EQ(setting::customFormat.key, "customFormat"_L1);
    EXPECT_EQ(setting::customFormat.valueIn(empty), u"yyyy-MM-dd HH:mm zzz"_s);
    EXPECT_EQ(setting::multiZoneLayout.key, "multiZoneLayout"_L1);
    EXPECT_EQ(setting::multiZoneLayout.valueIn(empty), u"Inline"_s);
    EXPECT_EQ(setting::includeDate.key, "includeDate"_L1);
    EXPECT_TRUE(setting::includeDate.valueIn(empty));
    EXPECT_EQ(setting::includeTime.key, "includeTime"_L1);
    EXPECT_TRUE(setting::includeTime.valueIn(empty));
    EXPECT_EQ(setting::selectedZones.key, "selectedTZs"_L1);
    EXPECT_EQ(setting::selectedZones.storedIn(empty), std::nullopt);
}

TEST(SettingsTable, WindowFramesHaveTheirKeys) {
    EXPECT_EQ(windowframesetting::x, "x"_L1);
    EXPECT_EQ(windowframesetting::y, "y"_L1);
    EXPECT_EQ(windowframesetting::width, "width"_L1);
    EXPECT_EQ(windowframesetting::height, "height"_L1);
    EXPECT_EQ(windowframesetting::greatestCoordinate, 32767.0);
}

TEST(SettingsTable, WhatIsStoredComesBackInItsType) {
    MemoryDefaults defaults;
    setting::favoriteZones.store(defaults, {u"UTC"_s});
    setting::showInMenuBar.store(defaults, false);
    setting::presentationMode.store(defaults, u"Popover"_s);
    setting::hotKeyCode.store(defaults, 9);
    EXPECT_EQ(setting::favoriteZones.storedIn(defaults), QStringList{u"UTC"_s});
    EXPECT_FALSE(setting::showInMenuBar.valueIn(defaults));
    EXPECT_EQ(setting::presentationMode.valueIn(defaults), u"Popover"_s);
    EXPECT_EQ(setting::hotKeyCode.valueIn(defaults), 9);
}

} // namespace
} // namespace quorvane
