// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>
#include <recorder/KeyNames.h>
#include <testing/FakeKeyboardLayout.h>

#include <gtest/gtest.h>

#include <linux/input-event-codes.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

FakeKeyboardLayout layout() {
    FakeKeyboardLayout keys;
    keys.setKey(2, u"d");
    keys.setKey(41, u"ö");
    keys.setKey(49, u" ");
    keys.setKey(36, u"\r");
    keys.setKey(87, u"5");
    keys.setKey(93, u"\x1b");
    return keys;
}

TEST(KeyNames, ModifiersAreNamedAsTheKeysHereAre) {
    EXPECT_EQ(
        spokenModifiers(0x1b00), (QStringList{u"Control"_s, u"Alt"_s, u"Shift"_s, u"Super"_s}));
    EXPECT_EQ(spokenModifiers(0), QStringList());
}

TEST(KeyNames, LettersAreThoseOfTheLayout) {
    EXPECT_EQ(spokenKey(2, layout()), u"D"_s);
    EXPECT_EQ(spokenKey(41, layout()), u"Ö"_s);
}

TEST(KeyNames, KeysThatTypeNothingReadableHaveNames) {
    const std::array<std::pair<std::uint16_t, QString>, 8> table{
        {{KEY_F5, u"F5"_s},
         {KEY_LEFT, u"Left Arrow"_s},
         {KEY_SPACE, u"Space"_s},
         {KEY_ENTER, u"Return"_s},
         {KEY_KP5, u"Keypad 5"_s},
         {KEY_SYSRQ, u"Print Screen"_s},
         {KEY_DELETE, u"Delete"_s},
         {KEY_BACKSPACE, u"Backspace"_s}}};
    for (const auto& [evdevCode, name] : table)
        EXPECT_EQ(spokenKey(keyCodeFromEvdev(evdevCode), layout()), name);
}

TEST(KeyNames, EveryFunctionKeyIsNamedByItsNumber) {
    constexpr std::array evdevCodes{KEY_F1,  KEY_F2,  KEY_F3,  KEY_F4,  KEY_F5,  KEY_F6,  KEY_F7,
                                    KEY_F8,  KEY_F9,  KEY_F10, KEY_F11, KEY_F12, KEY_F13, KEY_F14,
                                    KEY_F15, KEY_F16, KEY_F17, KEY_F18, KEY_F19, KEY_F20};
    int number = 0;
    for (const int code : evdevCodes)
        EXPECT_EQ(
            spokenKey(keyCodeFromEvdev(static_cast<std::uint16_t>(code)), layout()),
            u"F%1"_s.arg(++number));
}

TEST(KeyNames, WhatHasNoNameIsTold) {
    EXPECT_EQ(spokenKey(93, layout()), u"Key 93"_s);
    EXPECT_EQ(spokenKey(0x100 + KEY_MUTE, layout()), u"Key 369"_s);
    FakeKeyboardLayout none;
    none.setAvailable(false);
    EXPECT_EQ(spokenKey(2, none), u"Key 2"_s);
}

TEST(KeyNames, CapsShowWhatIsPrintedOnTheKeys) {
    EXPECT_EQ(
        capLabels({2, 0x1b00}, layout()),
        (QStringList{u"Ctrl"_s, u"Alt"_s, u"Shift"_s, u"Super"_s, u"D"_s}));
    const std::array<std::pair<std::uint16_t, QString>, 8> table{
        {{KEY_F5, u"F5"_s},
         {KEY_SPACE, u"Space"_s},
         {KEY_ENTER, u"Return"_s},
         {KEY_LEFT, u"←"_s},
         {KEY_UP, u"↑"_s},
         {KEY_RIGHT, u"→"_s},
         {KEY_DOWN, u"↓"_s},
         {KEY_KP5, u"Keypad 5"_s}}};
    for (const auto& [evdevCode, label] : table)
        EXPECT_EQ(
            capLabels({keyCodeFromEvdev(evdevCode), 0x200}, layout()),
            (QStringList{u"Shift"_s, label}));
}

TEST(KeyNames, ShortcutIsOneWordInTexts) {
    EXPECT_EQ(shortcutText({2, 0x1300}, layout()), u"Ctrl+Shift+Super+D"_s);
    EXPECT_EQ(shortcutText({keyCodeFromEvdev(KEY_LEFT), 0x800}, layout()), u"Alt+Left Arrow"_s);
}

TEST(KeyNames, OnlyKeysWithASignOnThemTypeOne) {
    EXPECT_TRUE(typesVisibleCharacter(2, layout()));
    EXPECT_FALSE(typesVisibleCharacter(49, layout())) << "Space";
    EXPECT_FALSE(typesVisibleCharacter(87, layout())) << "the keypad's 5";
    EXPECT_FALSE(typesVisibleCharacter(93, layout())) << "types a control character";
}

TEST(KeyNames, OneNameForEachCap) {
    const HotKeyCombo combo{96, 0x1300};
    EXPECT_EQ(
        spokenKeys(combo, layout()), (QStringList{u"Control"_s, u"Shift"_s, u"Super"_s, u"F5"_s}));
    EXPECT_EQ(capLabels(combo, layout()).size(), spokenKeys(combo, layout()).size());
}

} // namespace
} // namespace quorvane
