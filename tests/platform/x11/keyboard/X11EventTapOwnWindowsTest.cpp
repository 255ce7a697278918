// SPDX-License-Identifier: MIT
#include "X11EventTap.h"
#include "support/TapTest.h"

#include <QLineEdit>
#include <QMenu>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// While a popup of ours is open, which holds the whole keyboard.
class TapOnX11WithOwnMenu : public TapTest {
protected:
    void SetUp() override {
        TapTest::SetUp();
        m_menu.addAction(u"Delete"_s);
        m_menu.popup({100, 100});
        ASSERT_TRUE(waitUntil([this] { return holdsKeyboard(); }));
    }

    /// Nobody else can grab the keyboard then.
    [[nodiscard]] bool holdsKeyboard() const {
        const auto cookie = xcb_grab_keyboard(
            m_target.connection(),
            0,
            m_target.screen().root,
            XCB_CURRENT_TIME,
            XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC);
        const XcbReply<xcb_grab_keyboard_reply_t> reply(
            xcb_grab_keyboard_reply(m_target.connection(), cookie, nullptr));
        xcb_ungrab_keyboard(m_target.connection(), XCB_CURRENT_TIME);
        xcb_flush(m_target.connection());
        return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
    }

    QMenu m_menu;
};

TEST_F(TapOnX11WithOwnMenu, DeliversThePressOnce) {
    const auto tap = makeTap();
    m_keyboard.type(shortcutKeys);
    m_keyboard.type({KEY_ESC});
    ASSERT_TRUE(waitUntil([this] { return !m_menu.isVisible(); }));
    ASSERT_EQ(m_presses.size(), 1U);
    EXPECT_EQ(m_presses.front().keyCode, keycode::d);
    EXPECT_EQ(m_presses.front().flags, shortcut.flags);
}

TEST_F(TapOnX11WithOwnMenu, KeepsASwallowedPressFromTheMenu) {
    bool chosen = false;
    QObject::connect(&m_menu, &QMenu::triggered, [&chosen] { chosen = true; });
    m_menu.actions().front()->setText(u"&Delete"_s);
    const auto tap = makeTap(KeyChord{keycode::d, modifier::none});
    m_keyboard.type({KEY_D});
    m_keyboard.type({KEY_ESC});
    ASSERT_TRUE(waitUntil([this] { return !m_menu.isVisible(); }));
    EXPECT_EQ(m_presses.size(), 1U);
    EXPECT_FALSE(chosen);
}

TEST_F(TapOnX11WithOwnMenu, LeavesOtherPressesToTheMenu) {
    m_menu.actions().front()->setText(u"&Delete"_s);
    bool chosen = false;
    QObject::connect(&m_menu, &QMenu::triggered, [&chosen] { chosen = true; });
    const auto tap = makeTap();
    m_keyboard.type({KEY_D});
    EXPECT_TRUE(waitUntil([&chosen] { return chosen; }));
    EXPECT_TRUE(m_presses.empty());
}

TEST_F(TapOnX11WithOwnMenu, DeliversNothingThatAnotherProgramHolds) {
    ASSERT_TRUE(m_target.grabKey(keycodeOfD, shortcutMask));
    const auto tap = makeTap();
    m_keyboard.type(shortcutKeys);
    m_keyboard.type({KEY_ESC});
    ASSERT_TRUE(waitUntil([this] { return !m_menu.isVisible(); }));
    EXPECT_TRUE(m_presses.empty());
}

class TapOnX11WithOwnField : public TapTest {
protected:
    void SetUp() override {
        m_field.show();
        m_field.activateWindow();
        ASSERT_TRUE(waitUntil([this] { return m_field.isVisible() && m_field.isActiveWindow(); }));
    }

    QLineEdit m_field;
};

TEST_F(TapOnX11WithOwnField, SwallowsThePressOnce) {
    const auto tap = makeTap(KeyChord{keycode::d, modifier::none});
    m_keyboard.type({KEY_D});
    m_keyboard.type({KEY_A});
    EXPECT_TRUE(waitUntil([this] { return m_field.text() == u"a"; }));
    EXPECT_EQ(m_presses.size(), 1U);
}

} // namespace

} // namespace quorvane
