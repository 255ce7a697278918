// SPDX-License-Identifier: MIT
#include "X11Xkb.h"
#include "support/PosterTest.h"

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct TwoKeyboardsRow {
    const char* layout;
    const char* layoutOfHardware;
    std::uint16_t key;
};

class PosterOnX11WithTwoKeyboards : public PosterOnX11,
                                    public testing::WithParamInterface<TwoKeyboardsRow> {
protected:
    void TearDown() override {
        Keyboard(Keyboard::Device::Physical).setLayoutOfHardware(u"us"_s);
        PosterOnX11::TearDown();
    }

    [[nodiscard]] xcb_keycode_t keyPostedBy(X11KeyPoster& keys, ForeignWindow& window) {
        const auto before = window.keys().size();
        EXPECT_EQ(pasteOutcome(keys), PostOutcome::Posted);
        const auto all = keysOf(window, before + 4);
        return all.size() == before + 4 ? all[before + 1].keycode : xcb_keycode_t{0};
    }
};

// The server takes our keys by the layout of the keyboard that XTEST types on, whichever one the
// user has typed on.
TEST_P(PosterOnX11WithTwoKeyboards, PressesTheKeyThatIsVOnTheOneThatTypes) {
    const auto& row = GetParam();
    Keyboard user(Keyboard::Device::Physical);
    ForeignWindow window;
    window.takeFocus();
    auto openedBefore = poster();
    setLayout(QString::fromLatin1(row.layout));
    user.setLayoutOfHardware(QString::fromLatin1(row.layoutOfHardware));
    user.type({KEY_SPACE});
    auto openedAfter = poster();
    EXPECT_EQ(keyPostedBy(openedAfter, window), x11(row.key));
    user.type({KEY_SPACE});
    // The keymap follows in a later event-loop iteration.
    ASSERT_TRUE(waitUntil([&] { return keyPostedBy(openedBefore, window) == x11(row.key); }));
}

INSTANTIATE_TEST_SUITE_P(
    Every,
    PosterOnX11WithTwoKeyboards,
    testing::Values(
        TwoKeyboardsRow{"us(dvorak)", "us", KEY_DOT}, TwoKeyboardsRow{"us", "us(dvorak)", KEY_V}));

struct StuckRow {
    x11xkb::StuckModifiers stuck;
    const char* name;
};

class PosterOnX11WithStuckModifier : public PosterOnX11,
                                     public testing::WithParamInterface<StuckRow> {
protected:
    void TearDown() override {
        x11xkb::setStuckModifiers(m_connection->xcb(), 0xff, {});
        m_connection->waitForServer();
        PosterOnX11::TearDown();
    }
};

TEST_P(PosterOnX11WithStuckModifier, LiftsItForTheKeysAndGivesItBack) {
    const auto& stuck = GetParam().stuck;
    ForeignWindow window;
    window.takeFocus();
    auto keys = poster();
    auto* xcb = m_connection->xcb();
    x11xkb::setStuckModifiers(xcb, 0xff, stuck);
    ASSERT_EQ(x11xkb::stuckModifiers(xcb), stuck);
    EXPECT_EQ(pasteOutcome(keys), PostOutcome::Posted);
    const auto received = keysOf(window, 4);
    ASSERT_EQ(received.size(), 4U);
    constexpr std::uint16_t locks = XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2;
    EXPECT_EQ(received[1].keycode, x11(KEY_V));
    EXPECT_EQ(received[1].state & ~locks, XCB_MOD_MASK_CONTROL);
    EXPECT_EQ(received[1].state & locks, stuck.locked & locks);
    EXPECT_EQ(x11xkb::stuckModifiers(xcb), stuck);
    // The user's next letter has it, and the one after it only what is locked.
    m_keyboard.type({KEY_A});
    m_keyboard.type({KEY_B});
    const auto letters = keysOf(window, 8);
    ASSERT_EQ(letters.size(), 8U);
    EXPECT_EQ(letters[4].state, stuck.locked | stuck.latched);
    EXPECT_EQ(letters[6].state, stuck.locked);
}

INSTANTIATE_TEST_SUITE_P(
    Every,
    PosterOnX11WithStuckModifier,
    testing::Values(
        StuckRow{{XCB_MOD_MASK_SHIFT, 0}, "LockedShift"},
        StuckRow{{XCB_MOD_MASK_1, 0}, "LockedAlt"},
        StuckRow{{XCB_MOD_MASK_4, 0}, "LockedSuper"},
        StuckRow{{XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2, 0}, "LockedWithLocks"},
        StuckRow{{0, XCB_MOD_MASK_SHIFT}, "LatchedShift"},
        StuckRow{{XCB_MOD_MASK_1, XCB_MOD_MASK_SHIFT}, "LockedAltAndLatchedShift"}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace

} // namespace quorvane
