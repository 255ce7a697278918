// SPDX-License-Identifier: MIT
#include "support/PosterTest.h"
#include "support/PrivateDisplay.h"

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

using enum ReceivedKey::Kind;

TEST_F(PosterOnX11, PressesAndReleasesControlAndV) {
    ForeignWindow window;
    window.takeFocus();
    ASSERT_EQ(paste(), PostOutcome::Posted);
    EXPECT_EQ(
        keysOf(window, 4),
        (std::vector<ReceivedKey>{
            {Press, x11(KEY_LEFTCTRL), 0},
            {Press, x11(KEY_V), XCB_MOD_MASK_CONTROL},
            {Release, x11(KEY_V), XCB_MOD_MASK_CONTROL},
            {Release, x11(KEY_LEFTCTRL), XCB_MOD_MASK_CONTROL},
        }));
}

struct LayoutRow {
    const char* layout;
    std::uint8_t group;
    std::uint16_t modifierKey;
    std::uint16_t key;
};

class PosterOnX11WithLayout : public PosterOnX11, public testing::WithParamInterface<LayoutRow> {};

TEST_P(PosterOnX11WithLayout, FindsTheKeyThatPastesThere) {
    const auto& row = GetParam();
    setLayout(QString::fromLatin1(row.layout));
    m_keyboard.useGroup(row.group);
    ForeignWindow window;
    window.takeFocus();
    ASSERT_EQ(paste(), PostOutcome::Posted);
    const auto keys = keysOf(window, 4);
    m_keyboard.useGroup(0);
    ASSERT_EQ(keys.size(), 4U);
    EXPECT_EQ(keys[0].keycode, x11(row.modifierKey));
    EXPECT_EQ(keys[1].keycode, x11(row.key));
}

// The keys that carry V, by the drawings of the layouts.
INSTANTIATE_TEST_SUITE_P(
    Every,
    PosterOnX11WithLayout,
    testing::Values(
        LayoutRow{"us", 0, KEY_LEFTCTRL, KEY_V},
        LayoutRow{"fr", 0, KEY_LEFTCTRL, KEY_V},
        LayoutRow{"us(dvorak)", 0, KEY_LEFTCTRL, KEY_DOT},
        LayoutRow{"us,us(dvorak)", 0, KEY_LEFTCTRL, KEY_V},
        LayoutRow{"us,us(dvorak)", 1, KEY_LEFTCTRL, KEY_DOT},
        LayoutRow{"us,ru", 1, KEY_LEFTCTRL, KEY_V},
        LayoutRow{"ru,us", 0, KEY_LEFTCTRL, KEY_V},
        LayoutRow{"ru", 0, KEY_LEFTSHIFT, KEY_INSERT},
        LayoutRow{"gr", 0, KEY_LEFTSHIFT, KEY_INSERT}));

TEST_F(PosterOnX11, UsesTheKeysOfATerminal) {
    ForeignWindow window("konsole", "konsole");
    window.takeFocus();
    ASSERT_EQ(paste(), PostOutcome::Posted);
    const auto keys = keysOf(window, 6);
    ASSERT_EQ(keys.size(), 6U);
    EXPECT_EQ(keys[2], (ReceivedKey{Press, x11(KEY_V), XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT}));
}

TEST_F(PosterOnX11, UsesShiftInsertForXterm) {
    ForeignWindow window("xterm", "XTerm");
    window.takeFocus();
    ASSERT_EQ(paste(), PostOutcome::Posted);
    const auto keys = keysOf(window, 4);
    ASSERT_EQ(keys.size(), 4U);
    EXPECT_EQ(keys[1], (ReceivedKey{Press, x11(KEY_INSERT), XCB_MOD_MASK_SHIFT}));
}

class PosterOnX11WithoutLatinV : public PosterOnX11,
                                 public testing::WithParamInterface<const char*> {};

// A terminal that pastes the clipboard by Ctrl+Shift+V pastes PRIMARY by Shift+Insert.
TEST_P(PosterOnX11WithoutLatinV, KnowsWhichSelectionTheOlderKeysPaste) {
    setLayout(QString::fromLatin1(GetParam()));
    constexpr PasteTarget fromSelection{PasteKeys::ShiftInsert, PasteSource::Selection};
    for (const auto* name : {"Konsole", "Gnome-terminal"}) {
        ForeignWindow terminal("terminal", name);
        terminal.takeFocus();
        EXPECT_EQ(pasteTarget(), fromSelection) << name;
    }
    ForeignWindow editor("mousepad", "Mousepad");
    editor.takeFocus();
    EXPECT_EQ(pasteTarget(), (PasteTarget{PasteKeys::ShiftInsert, PasteSource::Clipboard}));
    setLayout(u"us"_s);
    EXPECT_EQ(pasteTarget(), (PasteTarget{PasteKeys::ControlV, PasteSource::Clipboard}));
}

INSTANTIATE_TEST_SUITE_P(Every, PosterOnX11WithoutLatinV, testing::Values("ru", "gr"));

TEST_F(PosterOnX11, HasNoKeysWithoutAKeymap) {
    X11KeyPoster poster(m_connection, {}, std::make_shared<X11GrabbedKeys>(m_connection));
    EXPECT_EQ(poster.pasteTarget(), std::nullopt);
    EXPECT_EQ(pasteOutcome(poster), PostOutcome::NoSuchKey);
}

class PosterOnX11WithHeldKey : public PosterOnX11,
                               public testing::WithParamInterface<std::uint16_t> {};

TEST_P(PosterOnX11WithHeldKey, SendsOnlyControlAndLeavesNothingStuck) {
    if (GetParam() == KEY_RIGHTALT)
        setLayout(u"de"_s);
    Keyboard user(Keyboard::Device::Physical);
    ForeignWindow window;
    window.takeFocus();
    user.press(GetParam());
    ASSERT_NE(m_keyboard.state(), 0);
    ASSERT_EQ(paste(), PostOutcome::Posted);
    ASSERT_TRUE(waitUntil([&window] { return window.hasReceived(Release, x11(KEY_V)); }));
    for (const auto& key : window.keys()) {
        if (key.keycode == x11(KEY_V)) {
            EXPECT_EQ(key.state, XCB_MOD_MASK_CONTROL);
        }
    }
    user.release(GetParam());
    EXPECT_EQ(m_keyboard.state(), 0);
    user.type({KEY_LEFTCTRL, KEY_C});
    ASSERT_TRUE(waitUntil([&window] { return window.hasReceived(Release, x11(KEY_C)); }));
    EXPECT_EQ(
        std::ranges::find(window.keys(), x11(KEY_C), &ReceivedKey::keycode)->state,
        XCB_MOD_MASK_CONTROL);
    EXPECT_EQ(m_keyboard.state(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Every,
    PosterOnX11WithHeldKey,
    testing::Values(
        KEY_LEFTSHIFT,
        KEY_RIGHTSHIFT,
        KEY_LEFTCTRL,
        KEY_RIGHTCTRL,
        KEY_LEFTALT,
        KEY_RIGHTALT,
        KEY_LEFTMETA,
        KEY_RIGHTMETA));

TEST_F(PosterOnX11, LeavesCapsLockOn) {
    ForeignWindow window;
    window.takeFocus();
    m_keyboard.type({KEY_CAPSLOCK});
    EXPECT_EQ(paste(), PostOutcome::Posted);
    EXPECT_EQ(m_keyboard.state(), XCB_MOD_MASK_LOCK);
    m_keyboard.type({KEY_CAPSLOCK});
    EXPECT_EQ(m_keyboard.state(), 0);
}

TEST_F(PosterOnX11, PostsIntoAnyWindowWhereNoneIsActive) {
    xcb_set_input_focus(
        m_connection->xcb(), XCB_INPUT_FOCUS_NONE, XCB_INPUT_FOCUS_NONE, XCB_CURRENT_TIME);
    EXPECT_EQ(paste(), PostOutcome::Posted);
}

TEST(PosterOnX11WithoutXtest, IsUnavailable) {
    const PrivateDisplay display({u"-extension"_s, u"XTEST"_s});
    const ScopedDisplayVariable variable(display.name());
    QtMainQueue queue;
    const auto connection = X11Connection::open();
    const std::shared_ptr<X11Keymap> keymap = X11Keymap::open(queue);
    X11KeyPoster poster(
        connection,
        {keymap,
         [&] {
             return keymap;
         }},
        std::make_shared<X11GrabbedKeys>(connection));
    EXPECT_EQ(poster.pasteTarget(), std::nullopt);
    EXPECT_EQ(pasteOutcome(poster), PostOutcome::Unavailable);
    EXPECT_EQ(xcb_connection_has_error(connection->xcb()), 0) << "the other services live on";
}

} // namespace

} // namespace quorvane
