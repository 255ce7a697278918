// SPDX-License-Identifier: MIT
#include "X11EventTap.h"
#include "support/TapTest.h"

#include <x11_server/XcbRequests.h>

#include <algorithm>

namespace quorvane {
namespace {

using enum ReceivedKey::Kind;

/// What becomes of the other keys after a press of the shortcut, and of its own when it goes up.
class TapAndTheKeyboard : public TapTest {};

TEST_F(TapAndTheKeyboard, NeverKeepsTheKeysThatAreTypedAfterAPressWaiting) {
    const auto tap = makeTap();
    m_keyboard.type(shortcutKeys);
    m_keyboard.type({KEY_A});
    // The event loop has not run: nobody has answered the press.
    xcbrequests::waitForServer(m_target.connection());
    EXPECT_TRUE(m_target.hasReceived(Release, KEY_A + 8));
    EXPECT_TRUE(m_presses.empty());
    ASSERT_TRUE(keysAreThrough());
    EXPECT_EQ(m_presses.size(), 1U);
}

TEST_F(TapAndTheKeyboard, GivesTheKeyboardBackWhileTheShortcutIsHeld) {
    const auto tap = makeTap();
    for (const auto key : shortcutKeys)
        m_keyboard.press(key);
    ASSERT_TRUE(waitUntil([this] { return !m_presses.empty(); }));
    ASSERT_TRUE(keysAreThrough());
    m_keyboard.release(KEY_D);
    ASSERT_TRUE(waitUntil([this] { return targetGot(Release); }));
    EXPECT_FALSE(targetGot(Press));
}

TEST_F(TapAndTheKeyboard, GivesTheKeyboardBackWhenDestroyedWhileAPressIsUnanswered) {
    auto tap = makeTap();
    // The event loop has not run: the server sends us all keys, and nobody has answered.
    for (const auto key : shortcutKeys)
        m_keyboard.press(key);
    tap.reset();
    m_connection->waitForServer();
    ASSERT_TRUE(keysAreThrough());
    EXPECT_TRUE(m_presses.empty());
}

TEST_F(TapAndTheKeyboard, TellsTheEndOfAShortPress) {
    const auto tap = makeTap();
    ASSERT_TRUE(tap->tellsRelease());
    m_keyboard.type(shortcutKeys);
    ASSERT_TRUE(keysAreThrough());
    EXPECT_GE(m_releases, 1);
    m_releases = 0;
    ASSERT_TRUE(keysAreThrough());
    EXPECT_EQ(m_releases, 0) << "nobody listens any more";
    const auto ofD = [](const ReceivedKey& key) {
        return key.keycode == keycodeOfD;
    };
    EXPECT_EQ(std::ranges::count_if(m_target.keys(), ofD), 1) << "the release alone";
}

TEST_F(TapAndTheKeyboard, TellsTheEndOfAPressThatBeganBeforeIt) {
    EXPECT_FALSE(makeTap()->isKeyDown());
    m_keyboard.press(KEY_D);
    const auto tap = makeTap();
    EXPECT_TRUE(tap->isKeyDown());
    m_keyboard.release(KEY_D);
    EXPECT_TRUE(waitUntil([this] { return m_releases == 1; }));
    EXPECT_FALSE(tap->isKeyDown());
}

TEST_F(TapAndTheKeyboard, TellsTheEndOfALongPressAndOfNoOtherKey) {
    const auto tap = makeTap();
    for (const auto key : shortcutKeys)
        m_keyboard.press(key);
    ASSERT_TRUE(waitUntil([this] { return m_presses.size() >= 3; }));
    m_keyboard.type({KEY_A});
    m_keyboard.release(KEY_LEFTSHIFT);
    ASSERT_TRUE(keysAreThrough());
    EXPECT_EQ(m_releases, 0);
    m_keyboard.release(KEY_D);
    EXPECT_TRUE(waitUntil([this] { return m_releases == 1; }));
    m_keyboard.type({KEY_D});
    ASSERT_TRUE(keysAreThrough());
    EXPECT_EQ(m_releases, 1) << "a release without a press of the shortcut is not ours to see";
}

} // namespace
} // namespace quorvane
