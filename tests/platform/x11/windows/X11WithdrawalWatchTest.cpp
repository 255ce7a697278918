// SPDX-License-Identifier: MIT
#include "support/X11Test.h"

#include <x11_windows/X11WindowTraits.h>
#include <x11_windows/X11Windows.h>

#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <vector>

namespace quorvane {

namespace {

// ICCCM 4.1.3.1
constexpr std::uint32_t withdrawn = 0;
constexpr std::uint32_t normal = 1;
constexpr std::uint32_t iconic = 3;

/// The test is the window manager.
class WithdrawalTest : public X11Test {
protected:
    WithdrawalTest() {
        m_panel.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
        m_panel.winId();
    }

    void showPanel() {
        m_traits.preparePanel(*m_panel.windowHandle());
        m_panel.show();
        m_traits.presentPanel(*m_panel.windowHandle());
        manage(m_panel);
    }

    void showWindow() {
        m_window.show();
        manage(m_window);
    }

    void manage(const QWidget& widget) {
        EXPECT_TRUE(waitUntil([&] { return isViewable(widget); }));
        setState(widget, normal);
    }

    void iconify(const QWidget& widget) {
        xcb_unmap_window(m_connection->xcb(), idOf(widget));
        setState(widget, iconic);
    }

    void withdraw(const QWidget& widget) {
        xcb_unmap_window(m_connection->xcb(), idOf(widget));
        for (const auto* property : {"_NET_WM_DESKTOP", "_NET_WM_STATE", "WM_STATE"})
            xcb_delete_property(m_connection->xcb(), idOf(widget), m_connection->atom(property));
        m_connection->waitForServer();
        EXPECT_FALSE(isViewable(widget));
    }

    /// A window manager's note on a window: the state, and no icon.
    void setState(const QWidget& widget, std::uint32_t state) {
        const auto property = m_connection->atom("WM_STATE");
        const std::vector<std::uint32_t> value{state, XCB_WINDOW_NONE};
        xcb_change_property(
            m_connection->xcb(),
            XCB_PROP_MODE_REPLACE,
            idOf(widget),
            property,
            property,
            32,
            2,
            value.data());
        m_connection->waitForServer();
    }

    /// The window's return is the answer to the last of all events: those before it are through.
    [[nodiscard]] bool windowIsShownAgain() {
        withdraw(m_window);
        return waitUntil([this] { return isViewable(m_window); });
    }

    [[nodiscard]] bool isViewable(const QWidget& widget) const {
        return m_windows.isViewable(idOf(widget));
    }

    [[nodiscard]] bool hasState(const QWidget& widget, const char* state) const {
        const auto states = m_windows.values(idOf(widget), "_NET_WM_STATE", XCB_ATOM_ATOM);
        return std::ranges::count(states, m_connection->atom(state)) > 0;
    }

    static xcb_window_t idOf(const QWidget& widget) {
        return static_cast<xcb_window_t>(widget.winId());
    }

    X11Windows m_windows{m_connection};
    X11WindowTraits m_traits{m_connection};
    QWidget m_panel;
    QWidget m_window;
};

TEST_F(WithdrawalTest, AWindowThatIsToShowIsMappedAgain) {
    m_traits.setActivationPolicy(ActivationPolicy::Accessory);
    showWindow();
    EXPECT_TRUE(windowIsShownAgain());
    EXPECT_TRUE(hasState(m_window, "_NET_WM_STATE_SKIP_TASKBAR"));
}

TEST_F(WithdrawalTest, AStateThatSaysWithdrawnIsAsGoodAsNone) {
    showWindow();
    xcb_unmap_window(m_connection->xcb(), idOf(m_window));
    setState(m_window, withdrawn);
    EXPECT_TRUE(waitUntil([this] { return isViewable(m_window); }));
}

TEST_F(WithdrawalTest, ThePanelComesBackWithItsStatesAndTheFocus) {
    showPanel();
    withdraw(m_panel);
    EXPECT_TRUE(waitUntil(
        [this] { return isViewable(m_panel) && m_windows.inputFocus() == idOf(m_panel); }));
    EXPECT_TRUE(hasState(m_panel, "_NET_WM_STATE_STICKY"));
    EXPECT_TRUE(hasState(m_panel, "_NET_WM_STATE_ABOVE"));
    EXPECT_EQ(
        m_windows.values(idOf(m_panel), "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL),
        std::vector<std::uint32_t>{0xffffffff});
}

TEST_F(WithdrawalTest, APanelThatIsHiddenStaysHidden) {
    showWindow();
    showPanel();
    m_panel.hide();
    withdraw(m_panel);
    EXPECT_TRUE(windowIsShownAgain());
    EXPECT_FALSE(isViewable(m_panel));
}

TEST_F(WithdrawalTest, AnIconStaysOne) {
    showWindow();
    showPanel();
    iconify(m_panel);
    EXPECT_TRUE(windowIsShownAgain());
    EXPECT_FALSE(isViewable(m_panel));
}

} // namespace

} // namespace quorvane
