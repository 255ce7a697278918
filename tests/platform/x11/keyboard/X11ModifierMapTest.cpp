// SPDX-License-Identifier: MIT
#include "X11ModifierMap.h"

#include "support/X11Test.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <map>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

using Keysyms = std::vector<xcb_keysym_t>;

/// A keyboard of a few keys, by keycode.
X11ModifierMap mapOf(const X11ModifierMap::Rows& rows, std::map<xcb_keycode_t, Keysyms> keys) {
    return {rows, [keys](xcb_keycode_t keycode) {
                return keys.at(keycode);
            }};
}

TEST(X11ModifierMap, FindsAltBehindAKeyThatIsMetaWithShift) {
    const auto map = mapOf(
        {{{}, {}, {}, {64}, {77}, {}, {133}, {}}},
        {{64, {XKB_KEY_Alt_L, XKB_KEY_Meta_L}},
         {77, {XKB_KEY_Num_Lock}},
         {133, {XKB_KEY_Super_L}}});
    EXPECT_EQ(map.maskOf(modifier::option), XCB_MOD_MASK_1);
    EXPECT_EQ(map.maskOf(modifier::command), XCB_MOD_MASK_4);
    EXPECT_EQ(map.flagsOf(XCB_MOD_MASK_1 | XCB_MOD_MASK_4), modifier::option | modifier::command);
}

TEST(X11ModifierMap, FindsAKeysymThatNeedsShift) {
    const auto map =
        mapOf({{{}, {}, {}, {204}, {}, {}, {}, {}}}, {{204, {XKB_KEY_NoSymbol, XKB_KEY_Alt_L}}});
    EXPECT_EQ(map.maskOf(modifier::option), XCB_MOD_MASK_1);
}

TEST(X11ModifierMap, TakesMetaWhereThereIsNoAlt) {
    const auto map = mapOf({{{}, {}, {}, {}, {}, {64}, {}, {}}}, {{64, {XKB_KEY_Meta_L}}});
    EXPECT_EQ(map.maskOf(modifier::option), XCB_MOD_MASK_3);
}

TEST(X11ModifierMap, DoesNotTakeAltGrForOption) {
    const auto map = mapOf(
        {{{}, {}, {}, {64}, {}, {}, {}, {108}}},
        {{64, {XKB_KEY_Alt_L}}, {108, {XKB_KEY_ISO_Level3_Shift}}});
    EXPECT_EQ(map.flagsOf(XCB_MOD_MASK_5), modifier::none);
}

TEST(X11ModifierMap, HasNoMaskForAModifierThatTheKeyboardLacks) {
    const X11ModifierMap map;
    EXPECT_EQ(map.maskOf(modifier::command), std::nullopt);
    EXPECT_EQ(map.maskOf(modifier::shift | modifier::option), std::nullopt);
    EXPECT_EQ(
        map.maskOf(modifier::shift | modifier::control), XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL);
}

TEST(X11ModifierMap, IgnoresCapsLockInAMaskAndShowsItInFlags) {
    const X11ModifierMap map;
    EXPECT_EQ(map.maskOf(modifier::shift | modifier::capsLock), XCB_MOD_MASK_SHIFT);
    EXPECT_EQ(
        map.flagsOf(XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_LOCK), modifier::shift | modifier::capsLock);
}

TEST(X11ModifierMap, AddsEverySubsetOfTheLocks) {
    const auto map = mapOf(
        {{{}, {}, {}, {}, {77}, {78}, {}, {}}},
        {{77, {XKB_KEY_Num_Lock}}, {78, {XKB_KEY_Scroll_Lock}}});
    EXPECT_EQ(
        map.withLocks(XCB_MOD_MASK_SHIFT),
        (std::vector<std::uint16_t>{0x01, 0x03, 0x11, 0x13, 0x21, 0x23, 0x31, 0x33}));
}

TEST(X11ModifierMap, AddsNothingForALockThatTheKeyboardLacks) {
    EXPECT_EQ(X11ModifierMap().withLocks(0), (std::vector<std::uint16_t>{0x00, 0x02}));
}

class ModifierMapOfTheServer : public X11Test {};

TEST_F(ModifierMapOfTheServer, IsTheUsualOneOfAUsKeyboard) {
    const auto map = X11ModifierMap::read(*m_connection);
    EXPECT_EQ(map.maskOf(modifier::option), XCB_MOD_MASK_1);
    EXPECT_EQ(map.maskOf(modifier::command), XCB_MOD_MASK_4);
    EXPECT_EQ(map.withLocks(0), (std::vector<std::uint16_t>{0x00, 0x02, 0x10, 0x12}));
}

TEST_F(ModifierMapOfTheServer, HoldsForTheSecondLayoutToo) {
    setLayout(u"ru,de"_s);
    const auto map = X11ModifierMap::read(*m_connection);
    EXPECT_EQ(map.maskOf(modifier::option), XCB_MOD_MASK_1);
    EXPECT_EQ(map.flagsOf(XCB_MOD_MASK_5), modifier::none);
}

} // namespace

} // namespace quorvane
