// SPDX-License-Identifier: MIT
#include "support/ForeignWindow.h"
#include "support/WindowManager.h"
#include "support/X11Test.h"

#include <x11_server/X11ServerClock.h>
#include <x11_windows/X11WindowTraits.h>

#include <QWidget>
#include <QWindow>
#include <xcb/xtest.h>

#include <algorithm>
#include <optional>

namespace quorvane {

namespace {

class WindowTraitsTest : public X11Test {
protected:
    WindowTraitsTest() {
        m_panel.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        m_panel.setAttribute(Qt::WA_QuitOnClose, false);
        m_panel.winId();
    }

    void showPanel() {
        m_traits.preparePanel(*m_panel.windowHandle());
        m_panel.show();
        m_traits.presentPanel(*m_panel.windowHandle());
    }

    [[nodiscard]] bool hasFocus(const QWidget& widget) const {
        return m_windows.inputFocus() == widget.winId();
    }

    [[nodiscard]] bool isViewable(const QWidget& widget) const {
        return m_windows.isViewable(static_cast<xcb_window_t>(widget.winId()));
    }

    [[nodiscard]] bool hasState(const QWidget& widget, const char* state) const {
        const auto states = m_windows.values(
            static_cast<xcb_window_t>(widget.winId()), "_NET_WM_STATE", XCB_ATOM_ATOM);
        return std::ranges::count(states, m_connection->atom(state)) > 0;
    }

    [[nodiscard]] bool showsInTaskbar(const QWidget& widget) const {
        return !hasState(widget, "_NET_WM_STATE_SKIP_TASKBAR") &&
               !hasState(widget, "_NET_WM_STATE_SKIP_PAGER");
    }

    [[nodiscard]] bool staysOutOfTaskbar(const QWidget& widget) const {
        return hasState(widget, "_NET_WM_STATE_SKIP_TASKBAR") &&
               hasState(widget, "_NET_WM_STATE_SKIP_PAGER");
    }

    X11Windows m_windows{m_connection};
    X11WindowTraits m_traits{m_connection};
    QWidget m_panel;
};

TEST_F(WindowTraitsTest, TellsTheExtentOfAShadowInTheServersPixels) {
    m_panel.resize(400, 300);
    m_traits.setShadow(*m_panel.windowHandle(), {9, 3, 9, 15});
    EXPECT_EQ(
        m_windows.values(
            static_cast<xcb_window_t>(m_panel.winId()), "_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL),
        (std::vector<std::uint32_t>{9, 9, 3, 15}));
}

TEST_F(WindowTraitsTest, CompositesWhileAManagerOwnsTheScreensSelection) {
    EXPECT_FALSE(m_traits.isComposited());
    int changes = 0;
    m_traits.onCompositingChanged([&changes] { ++changes; });
    {
        ForeignWindow manager;
        xcb_set_selection_owner(
            manager.connection(),
            manager.id(),
            m_connection->atom("_NET_WM_CM_S0"),
            XCB_CURRENT_TIME);
        xcb_flush(manager.connection());
        EXPECT_TRUE(waitUntil([this] { return m_traits.isComposited(); }));
    }
    EXPECT_TRUE(waitUntil([this] { return !m_traits.isComposited(); }));
    // It came and went.
    EXPECT_TRUE(waitUntil([&changes] { return changes >= 2; }));
    m_traits.onCompositingChanged({});
}

TEST_F(WindowTraitsTest, KnowsWhatIsHeld) {
    const auto before = m_traits.heldInput();
    ASSERT_TRUE(before);
    EXPECT_EQ(before->buttons, 0);
    xcb_test_fake_input(m_connection->xcb(), XCB_BUTTON_PRESS, 3, 0, XCB_NONE, 0, 0, 0);
    EXPECT_TRUE(waitUntil([&] { return m_traits.heldInput()->hasButtonSince(*before); }));
    xcb_test_fake_input(m_connection->xcb(), XCB_BUTTON_RELEASE, 3, 0, XCB_NONE, 0, 0, 0);
    EXPECT_TRUE(waitUntil([&] { return m_traits.heldInput()->buttons == 0; }));
}

class PanelOnX11 : public WindowTraitsTest {
protected:
    void SetUp() override { ASSERT_TRUE(m_manager.isRunning()); }

    [[nodiscard]] bool isOnAllDesktops() const {
        return m_windows.values(
                   static_cast<xcb_window_t>(m_panel.winId()),
                   "_NET_WM_DESKTOP",
                   XCB_ATOM_CARDINAL) == std::vector<std::uint32_t>{0xffffffff};
    }

    [[nodiscard]] bool isAboveOthersOnAllDesktops() const {
        return isViewable(m_panel) && isOnAllDesktops() && hasState(m_panel, "_NET_WM_STATE_ABOVE");
    }

    WindowManager m_manager;
};

TEST_F(PanelOnX11, TakesTheFocusAtEveryShow) {
    ForeignWindow other;
    for (int round = 0; round < 3; ++round) {
        other.show();
        m_windows.requestFocus(other.id(), m_connection->lastUserTime());
        ASSERT_TRUE(waitUntil([&other] { return other.hasFocus(); }));
        showPanel();
        EXPECT_TRUE(waitUntil([this] {
            return hasFocus(m_panel) && m_windows.active() == m_panel.winId();
        })) << "round "
            << round;
        m_panel.hide();
    }
}

TEST_F(PanelOnX11, IsAboveOthersOnAllDesktopsAtEveryShow) {
    for (int round = 0; round < 3; ++round) {
        showPanel();
        EXPECT_TRUE(waitUntil([this] { return isAboveOthersOnAllDesktops(); }))
            << "round " << round;
        m_panel.hide();
        ASSERT_TRUE(waitUntil([this] { return !isViewable(m_panel); }));
    }
}

TEST_F(PanelOnX11, ShowsThoughItWasHiddenBeforeTheManagerHadMappedIt) {
    for (int round = 0; round < 30; ++round) {
        showPanel();
        m_panel.hide();
        showPanel();
        ASSERT_TRUE(waitUntil([this] { return isAboveOthersOnAllDesktops(); }))
            << "round " << round;
        EXPECT_TRUE(waitUntil([this] { return hasFocus(m_panel); })) << "round " << round;
        m_panel.hide();
    }
}

TEST_F(PanelOnX11, StaysInSightOnAnotherDesktop) {
    showPanel();
    ASSERT_TRUE(waitUntil([this] { return isAboveOthersOnAllDesktops(); }));
    ASSERT_TRUE(m_manager.showDesktop(1));
    EXPECT_TRUE(isViewable(m_panel));
    ASSERT_TRUE(m_manager.showDesktop(0));
}

TEST_F(PanelOnX11, ComesToTheFrontWithoutTheFocus) {
    showPanel();
    ASSERT_TRUE(waitUntil([this] { return hasFocus(m_panel); }));
    ForeignWindow other;
    other.show();
    m_windows.requestFocus(other.id(), m_connection->lastUserTime());
    ASSERT_TRUE(waitUntil([&other] { return other.hasFocus(); }));
    m_traits.orderFront(*m_panel.windowHandle());
    m_connection->waitForServer();
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(PanelOnX11, StaysOutOfTheTaskbarOfAnAccessory) {
    m_traits.setActivationPolicy(ActivationPolicy::Accessory);
    for (int round = 0; round < 2; ++round) {
        showPanel();
        EXPECT_TRUE(waitUntil([this] { return isViewable(m_panel) && staysOutOfTaskbar(m_panel); }))
            << "round " << round;
        m_panel.hide();
    }
}

TEST_F(PanelOnX11, LeavesWindowsOutOfTheTaskbarOfAnAccessoryAndInThatOfARegularProgram) {
    QWidget window;
    m_traits.setActivationPolicy(ActivationPolicy::Accessory);
    window.show();
    EXPECT_TRUE(waitUntil([&] { return isViewable(window) && staysOutOfTaskbar(window); }));
    m_traits.setActivationPolicy(ActivationPolicy::Regular);
    EXPECT_TRUE(waitUntil([&] { return showsInTaskbar(window); }));
    m_traits.setActivationPolicy(ActivationPolicy::Accessory);
    EXPECT_TRUE(waitUntil([&] { return staysOutOfTaskbar(window); }));
    window.hide();
    m_traits.setActivationPolicy(ActivationPolicy::Regular);
    window.show();
    EXPECT_TRUE(waitUntil([&] { return isViewable(window) && showsInTaskbar(window); }));
}

class PanelOnX11WithoutManager : public WindowTraitsTest {};

TEST_F(PanelOnX11WithoutManager, TakesTheFocusAtEveryShow) {
    ForeignWindow other;
    for (int round = 0; round < 3; ++round) {
        other.takeFocus();
        showPanel();
        EXPECT_TRUE(waitUntil([this] { return hasFocus(m_panel); })) << "round " << round;
        m_panel.hide();
    }
}

TEST_F(PanelOnX11WithoutManager, IsPreparedBeforeItIsMapped) {
    m_traits.setActivationPolicy(ActivationPolicy::Accessory);
    m_traits.preparePanel(*m_panel.windowHandle());
    EXPECT_FALSE(isViewable(m_panel));
    EXPECT_TRUE(hasState(m_panel, "_NET_WM_STATE_STICKY"));
    EXPECT_TRUE(hasState(m_panel, "_NET_WM_STATE_ABOVE"));
    m_panel.show();
    EXPECT_TRUE(staysOutOfTaskbar(m_panel));
    EXPECT_TRUE(hasState(m_panel, "_NET_WM_STATE_STICKY"));
}

// What each window manager needs differs: some drop the desktop of a window that is not mapped yet.
TEST_F(PanelOnX11WithoutManager, IsAskedToBeOnAllDesktopsOnceItIsMapped) {
    const auto witness = X11Connection::open();
    constexpr std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(witness->xcb(), witness->root(), XCB_CW_EVENT_MASK, &events);
    witness->waitForServer();
    bool isMapped = false;
    bool isAsked = false;
    const auto panel = static_cast<xcb_window_t>(m_panel.winId());
    const auto subscription = witness->subscribe([&](const xcb_generic_event_t& event) {
        const auto type = event.response_type & 0x7f;
        if (type == XCB_MAP_NOTIFY)
            isMapped = reinterpret_cast<const xcb_map_notify_event_t&>(event).window == panel;
        if (type != XCB_CLIENT_MESSAGE)
            return;
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.window == panel && message.type == witness->atom("_NET_WM_DESKTOP")) {
            isAsked = isMapped && message.data.data32[0] == 0xffffffff &&
                      message.data.data32[1] == sourcePager;
        }
    });
    showPanel();
    EXPECT_TRUE(waitUntil([&isAsked] { return isAsked; }));
}

// The user's last event may have gone to a window that is none of the X server's, as when a
// desktop's own key binding calls: a time from before it is refused by window managers.
TEST_F(PanelOnX11, AsksForTheFocusByTheTimeOfTheRequest) {
    const auto witness = X11Connection::open();
    constexpr std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(witness->xcb(), witness->root(), XCB_CW_EVENT_MASK, &events);
    witness->waitForServer();
    std::optional<xcb_timestamp_t> time;
    const auto subscription = witness->subscribe([&](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7f) != XCB_CLIENT_MESSAGE)
            return;
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.window == m_panel.winId() &&
            message.type == witness->atom("_NET_ACTIVE_WINDOW"))
            time = message.data.data32[1];
    });
    const auto before = X11ServerClock(witness).now();
    showPanel();
    ASSERT_TRUE(waitUntil([&time] { return time.has_value(); }));
    EXPECT_GE(*time, before);
    EXPECT_LE(*time, X11ServerClock(witness).now());
}

} // namespace

} // namespace quorvane
