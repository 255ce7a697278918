// SPDX-License-Identifier: MIT
#include "support/X11Test.h"

#include <platform/KeyCodes.h>
#include <x11_keyboard/X11KeyboardLayout.h>

#include <linux/input-event-codes.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct Row {
    const char* layout;
    std::uint16_t evdevCode;
    const char16_t* characters;
};

class KeyLabelOnX11 : public X11Test, public testing::WithParamInterface<Row> {};

TEST_P(KeyLabelOnX11, IsWhatTheKeyTypesAlone) {
    const auto& row = GetParam();
    setLayout(QString::fromLatin1(row.layout));
    // Neither locked nor held keys show in the label.
    m_keyboard.type({KEY_CAPSLOCK});
    m_keyboard.press(KEY_LEFTSHIFT);
    const X11KeyboardLayout layout(X11Keymap::open(m_queue));
    const auto keyCode = static_cast<std::uint16_t>(keyCodeFromEvdev(row.evdevCode));
    EXPECT_EQ(layout.characters(keyCode), row.characters);
    m_keyboard.release(KEY_LEFTSHIFT);
    m_keyboard.type({KEY_CAPSLOCK});
}

// By the drawings of the layouts.
INSTANTIATE_TEST_SUITE_P(
    Every,
    KeyLabelOnX11,
    testing::Values(
        Row{"us", KEY_D, u"d"},
        Row{"us", KEY_1, u"1"},
        Row{"us", KEY_SPACE, u" "},
        Row{"us", KEY_ENTER, u"\r"},
        Row{"us", KEY_TAB, u"\t"},
        Row{"us", KEY_ESC, u"\u001b"},
        Row{"us", KEY_F1, u""},
        Row{"us", KEY_LEFT, u""},
        Row{"us", KEY_UP, u""},
        Row{"us", KEY_HOME, u""},
        Row{"us", KEY_LEFTSHIFT, u""},
        Row{"us(dvorak)", KEY_D, u"e"},
        Row{"fr", KEY_Q, u"a"},
        Row{"fr", KEY_2, u"\u00e9"},
        Row{"fr", KEY_LEFTBRACE, u""},
        Row{"de", KEY_Y, u"z"},
        Row{"de", KEY_102ND, u"<"},
        Row{"de", KEY_EQUAL, u""},
        Row{"ru", KEY_D, u"\u0432"},
        Row{"gr", KEY_D, u"\u03b4"}));

class KeyboardLayoutOnX11 : public X11Test {
protected:
    X11KeyboardLayout m_layout{X11Keymap::open(m_queue)};
};

TEST_F(KeyboardLayoutOnX11, HasNothingForACodeThatNamesNoKey) {
    EXPECT_EQ(m_layout.characters(0x34), u"");
    EXPECT_EQ(m_layout.characters(0xffff), u"");
}

TEST_F(KeyboardLayoutOnX11, TellsWhatAKeyTypesWithShift) {
    setLayout(u"de"_s);
    EXPECT_TRUE(waitUntil([this] { return m_layout.shiftedCharacters(keycode::digit7) == u"/"; }));
    EXPECT_EQ(m_layout.characters(keycode::digit7), u"7");
    EXPECT_EQ(m_layout.shiftedCharacters(keycode::d), u"D");
    EXPECT_EQ(m_layout.shiftedCharacters(0xffff), u"");
}

TEST_F(KeyboardLayoutOnX11, CannotBeAskedWithoutAKeymap) {
    EXPECT_EQ(X11KeyboardLayout(nullptr).characters(keycode::d), std::nullopt);
}

TEST_F(KeyboardLayoutOnX11, FollowsAChangeOfTheLayout) {
    int changes = 0;
    m_layout.onChanged([&changes] { ++changes; });
    setLayout(u"us(dvorak)"_s);
    EXPECT_TRUE(waitUntil([&changes] { return changes > 0; }));
    EXPECT_TRUE(waitUntil([this] { return m_layout.characters(keycode::d) == u"e"; }));
}

TEST_F(KeyboardLayoutOnX11, FollowsASwitchBetweenLayouts) {
    setLayout(u"us,ru"_s);
    ASSERT_TRUE(waitUntil([this] { return m_layout.characters(keycode::d) == u"d"; }));
    int changes = 0;
    m_layout.onChanged([&changes] { ++changes; });
    m_keyboard.useGroup(1);
    EXPECT_TRUE(waitUntil([this] { return m_layout.characters(keycode::d) == u"\u0432"; }));
    EXPECT_GT(changes, 0);
    m_keyboard.useGroup(0);
    EXPECT_TRUE(waitUntil([this] { return m_layout.characters(keycode::d) == u"d"; }));
}

TEST_F(KeyboardLayoutOnX11, DoesNotCallAHandlerThatWasReplaced) {
    bool first = false;
    bool second = false;
    m_layout.onChanged([&first] { first = true; });
    m_layout.onChanged([&second] { second = true; });
    setLayout(u"fr"_s);
    EXPECT_TRUE(waitUntil([&second] { return second; }));
    EXPECT_FALSE(first);
}

} // namespace

} // namespace quorvane
