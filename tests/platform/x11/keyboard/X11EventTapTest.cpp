// SPDX-License-Identifier: MIT
#include "X11EventTap.h"

#include "support/PrivateDisplay.h"
#include "support/TapTest.h"

#include <testing/PasteOutcome.h>
#include <x11_keyboard/X11KeyPoster.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

using enum ReceivedKey::Kind;

class TapOnX11 : public TapTest {
protected:
    [[nodiscard]] static bool isDelivering(const EventTap& tap) {
        return tap.delivery() == TapDelivery::Delivering;
    }
};

TEST_F(TapOnX11, SwallowsThePressAndLetsTheReleaseThrough) {
    const auto tap = makeTap();
    ASSERT_TRUE(isDelivering(*tap));
    m_keyboard.type(shortcutKeys);
    ASSERT_TRUE(keysAreThrough());
    ASSERT_EQ(m_presses.size(), 1U);
    EXPECT_EQ(m_presses.front().keyCode, keycode::d);
    EXPECT_EQ(m_presses.front().flags, shortcut.flags);
    EXPECT_FALSE(targetGot(Press));
    EXPECT_TRUE(waitUntil([this] { return targetGot(Release); }));
}

TEST_F(TapOnX11, DeliversEachRepeatOfAHeldKey) {
    const auto tap = makeTap();
    for (const auto key : shortcutKeys)
        m_keyboard.press(key);
    EXPECT_TRUE(waitUntil([this] { return m_presses.size() >= 4; }));
    for (const auto key : {KEY_D, KEY_LEFTMETA, KEY_LEFTSHIFT, KEY_LEFTCTRL})
        m_keyboard.release(static_cast<std::uint16_t>(key));
    ASSERT_TRUE(keysAreThrough());
    EXPECT_FALSE(targetGot(Press));
}

// Only a press that halts the keyboard until it is answered could be handed on.
TEST_F(TapOnX11, KeepsAPressThatItsHandlerLetsPass) {
    m_verdict = TapVerdict::Pass;
    const auto tap = makeTap();
    m_keyboard.type(shortcutKeys);
    ASSERT_TRUE(keysAreThrough());
    EXPECT_EQ(m_presses.size(), 1U);
    EXPECT_FALSE(targetGot(Press));
    EXPECT_TRUE(waitUntil([this] { return targetGot(Release); }));
}

TEST_F(TapOnX11, LeavesAPressWithOneModifierMoreAlone) {
    const auto tap = makeTap();
    m_keyboard.type({KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_LEFTMETA, KEY_LEFTALT, KEY_D});
    ASSERT_TRUE(keysAreThrough());
    EXPECT_TRUE(m_presses.empty());
    EXPECT_TRUE(targetGot(Press));
}

TEST_F(TapOnX11, LeavesAPressWithOneModifierLessAlone) {
    const auto tap = makeTap();
    m_keyboard.type({KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_D});
    ASSERT_TRUE(keysAreThrough());
    EXPECT_TRUE(m_presses.empty());
    EXPECT_TRUE(targetGot(Press));
}

TEST_F(TapOnX11, TakesTheKeysOnTheRightForTheSame) {
    const auto tap = makeTap();
    m_keyboard.type({KEY_RIGHTCTRL, KEY_RIGHTSHIFT, KEY_RIGHTMETA, KEY_D});
    ASSERT_TRUE(keysAreThrough());
    EXPECT_EQ(m_presses.size(), 1U);
}

class TapOnX11WithLocks : public TapOnX11,
                          public testing::WithParamInterface<std::vector<std::uint16_t>> {};

TEST_P(TapOnX11WithLocks, DeliversTheShortcutAllTheSame) {
    // Most keyboard maps have Scroll Lock on no modifier.
    setLayout(u"us"_s);
    m_keyboard.setModifierKey(XCB_MAP_INDEX_3, KEY_SCROLLLOCK);
    const auto tap = makeTap();
    for (const auto lock : GetParam())
        m_keyboard.type({lock});
    m_keyboard.type(shortcutKeys);
    EXPECT_TRUE(waitUntil([this] { return !m_presses.empty(); }));
    for (const auto lock : GetParam())
        m_keyboard.type({lock});
    ASSERT_TRUE(keysAreThrough());
    ASSERT_EQ(m_presses.size(), 1U);
    EXPECT_EQ(m_presses.front().flags & modifier::counted, shortcut.flags);
    const bool capsLock = std::ranges::count(GetParam(), KEY_CAPSLOCK) > 0;
    EXPECT_EQ((m_presses.front().flags & modifier::capsLock) == modifier::capsLock, capsLock);
    EXPECT_FALSE(targetGot(Press));
}

INSTANTIATE_TEST_SUITE_P(
    EverySet,
    TapOnX11WithLocks,
    testing::Values(
        std::vector<std::uint16_t>{},
        std::vector<std::uint16_t>{KEY_CAPSLOCK},
        std::vector<std::uint16_t>{KEY_NUMLOCK},
        std::vector<std::uint16_t>{KEY_CAPSLOCK, KEY_NUMLOCK},
        std::vector<std::uint16_t>{KEY_SCROLLLOCK},
        std::vector<std::uint16_t>{KEY_SCROLLLOCK, KEY_CAPSLOCK},
        std::vector<std::uint16_t>{KEY_SCROLLLOCK, KEY_NUMLOCK},
        std::vector<std::uint16_t>{KEY_SCROLLLOCK, KEY_CAPSLOCK, KEY_NUMLOCK}));

class TapOnX11WithLayout : public TapOnX11, public testing::WithParamInterface<const char*> {};

TEST_P(TapOnX11WithLayout, KeepsToThePositionOfTheKey) {
    const auto tap = makeTap();
    setLayout(QString::fromLatin1(GetParam()));
    m_keyboard.useGroup(1); // of a single layout, the same again
    m_keyboard.type(shortcutKeys);
    ASSERT_TRUE(keysAreThrough());
    m_keyboard.useGroup(0);
    EXPECT_EQ(m_presses.size(), 1U);
    EXPECT_FALSE(targetGot(Press));
}

INSTANTIATE_TEST_SUITE_P(
    Every, TapOnX11WithLayout, testing::Values("us", "us(dvorak)", "fr", "ru", "us,ru", "de"));

TEST_F(TapOnX11, FollowsAModifierThatMovesWhileItRuns) {
    const auto tap = makeTap();
    setLayout(u"us"_s);
    m_keyboard.swapModifiers(XCB_MAP_INDEX_4, XCB_MAP_INDEX_3);
    // The grab follows in a later event-loop iteration; until then the old one stands.
    ASSERT_TRUE(waitUntil([this] {
        m_keyboard.type(shortcutKeys);
        return !m_presses.empty();
    }));
    EXPECT_EQ(m_presses.back().flags, shortcut.flags);
}

TEST_F(TapOnX11, ChangesToAnotherChordAtOnce) {
    const auto tap = makeTap();
    tap->watch(KeyChord{keycode::v, modifier::option});
    EXPECT_TRUE(isDelivering(*tap));
    m_keyboard.type(shortcutKeys);
    m_keyboard.type({KEY_LEFTALT, KEY_V});
    ASSERT_TRUE(keysAreThrough());
    ASSERT_EQ(m_presses.size(), 1U);
    EXPECT_EQ(m_presses.front().keyCode, keycode::v);
    EXPECT_EQ(m_presses.front().flags, modifier::option);
    EXPECT_TRUE(targetGot(Press));
}

TEST_F(TapOnX11, TakesAChordWithoutModifiers) {
    const auto tap = makeTap(KeyChord{keycode::v, modifier::none});
    m_keyboard.type({KEY_V});
    m_keyboard.type({KEY_LEFTSHIFT, KEY_V});
    ASSERT_TRUE(keysAreThrough());
    EXPECT_EQ(m_presses.size(), 1U);
}

TEST_F(TapOnX11, HoldsNothingWhileDisabledOrWithoutAChord) {
    const auto tap = makeTap();
    tap->disable();
    EXPECT_FALSE(isDelivering(*tap));
    m_connection->waitForServer();
    EXPECT_TRUE(m_target.grabKey(keycodeOfD, shortcutMask));
    m_target.ungrabKey(keycodeOfD, shortcutMask);
    tap->enable();
    tap->watch(std::nullopt);
    EXPECT_FALSE(isDelivering(*tap));
    m_connection->waitForServer();
    EXPECT_TRUE(m_target.grabKey(keycodeOfD, shortcutMask));
}

TEST_F(TapOnX11, DoesNotDeliverAKeyThatNoKeyboardHas) {
    constexpr auto none = TapDelivery::NoSuchKey;
    EXPECT_EQ(makeTap(KeyChord{0x34, modifier::command})->delivery(), none);
    EXPECT_EQ(makeTap(KeyChord{0x100 + KEY_MAX, modifier::command})->delivery(), none);
}

TEST_F(TapOnX11, LeavesAPressToTheProgramThatHoldsIt) {
    // One of the states is enough; the others must then stay free.
    ASSERT_TRUE(m_target.grabKey(keycodeOfD, shortcutMask | XCB_MOD_MASK_LOCK));
    const auto tap = makeTap();
    EXPECT_FALSE(isDelivering(*tap));
    m_connection->waitForServer();
    EXPECT_TRUE(m_target.grabKey(keycodeOfD, shortcutMask));
    m_keyboard.type(shortcutKeys);
    ASSERT_TRUE(keysAreThrough());
    EXPECT_TRUE(m_presses.empty());
    EXPECT_TRUE(targetGot(Press));
}

TEST_F(TapOnX11, GetsAPressThatAnotherProgramHasFreedWhenEnabledAgain) {
    ASSERT_TRUE(m_target.grabKey(keycodeOfD, shortcutMask));
    const auto tap = makeTap();
    m_target.ungrabKey(keycodeOfD, shortcutMask);
    tap->enable();
    EXPECT_TRUE(isDelivering(*tap));
    m_keyboard.type(shortcutKeys);
    ASSERT_TRUE(keysAreThrough());
    EXPECT_EQ(m_presses.size(), 1U);
}

TEST_F(TapOnX11, TellsThatAnotherProgramHoldsThePressAndThatItIsFreed) {
    ASSERT_TRUE(m_target.grabKey(keycodeOfD, shortcutMask));
    const auto tap = makeTap();
    EXPECT_EQ(tap->delivery(), TapDelivery::HeldElsewhere);
    EXPECT_EQ(m_deliveryChanges, 1);
    tap->enable();
    EXPECT_EQ(m_deliveryChanges, 1);
    m_target.ungrabKey(keycodeOfD, shortcutMask);
    tap->enable();
    EXPECT_EQ(m_deliveryChanges, 2);
    tap->disable();
    EXPECT_EQ(tap->delivery(), TapDelivery::Off);
    EXPECT_EQ(m_deliveryChanges, 3);
}

TEST_F(TapOnX11, FreesThePressWhenDestroyed) {
    auto tap = makeTap();
    EXPECT_FALSE(m_target.grabKey(keycodeOfD, shortcutMask));
    tap.reset();
    m_connection->waitForServer();
    EXPECT_TRUE(m_target.grabKey(keycodeOfD, shortcutMask));
}

TEST_F(TapOnX11, DecidesAnUndecidedPressOnceAlthoughItIsEnabledAnew) {
    const auto tap = makeTap();
    m_keyboard.type(shortcutKeys);
    tap->disable();
    tap->enable();
    ASSERT_TRUE(keysAreThrough());
    EXPECT_EQ(m_presses.size(), 1U);
    EXPECT_FALSE(targetGot(Press));
}

TEST_F(TapOnX11, NotesTheTimeOfThePressAsTheUsers) {
    const auto tap = makeTap();
    const auto before = m_connection->lastUserTime();
    m_keyboard.type(shortcutKeys);
    EXPECT_TRUE(waitUntil([this] { return !m_presses.empty(); }));
    EXPECT_GT(m_connection->lastUserTime(), before);
}

TEST_F(TapOnX11, LetsThroughWhatTheProgramTypesItself) {
    const auto tap = makeTap(KeyChord{keycode::v, modifier::control});
    const std::shared_ptr<X11Keymap> keymap = X11Keymap::open(m_queue);
    X11KeyPoster poster(
        m_connection,
        {keymap,
         [&] {
             return keymap;
         }},
        m_grabbedKeys);
    ASSERT_EQ(
        pasteOutcome(poster, {PasteKeys::ControlV, PasteSource::Clipboard}), PostOutcome::Posted);
    ASSERT_TRUE(keysAreThrough());
    EXPECT_TRUE(m_presses.empty());
    EXPECT_TRUE(m_target.hasReceived(Press, KEY_V + 8));
    EXPECT_TRUE(isDelivering(*tap));
    m_keyboard.type({KEY_LEFTCTRL, KEY_V});
    EXPECT_TRUE(waitUntil([this] { return m_presses.size() == 1; }));
}

TEST(TapServiceOnX11, FailsOnceTheServerIsGone) {
    PrivateDisplay display;
    const ScopedDisplayVariable variable(display.name());
    QtMainQueue queue;
    const auto connection = X11Connection::open();
    X11EventTapService service(connection, queue, std::make_shared<X11GrabbedKeys>(connection));
    display.stop();
    connection->waitForServer();
    const auto result = service.createTap({});
    ASSERT_TRUE(std::holds_alternative<TapFailure>(result));
    EXPECT_EQ(std::get<TapFailure>(result).reason, u"there is no X server"_s);
}

} // namespace

} // namespace quorvane
