// SPDX-License-Identifier: MIT
#include "support/ForeignWindow.h"
#include "support/WindowManager.h"
#include "support/X11Test.h"

#include <x11_windows/X11Workspace.h>

#include <QWidget>

#include <linux/input-event-codes.h>
#include <memory>
#include <vector>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

class WorkspaceOnX11 : public X11Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_manager.isRunning()); }

    void activate(ForeignWindow& window) {
        window.show();
        X11Windows(m_connection).requestFocus(window.id(), m_connection->lastUserTime());
        ASSERT_TRUE(becomesActive(window.id()));
    }

    /// The window manager gives it the focus by itself. Asking Qt for that too would send a
    /// request that arrives at any time later.
    void activate(QWidget& widget) {
        widget.show();
        ASSERT_TRUE(becomesActive(static_cast<xcb_window_t>(widget.winId())));
    }

    /// Also waits until the event that tells of it has reached the connection's subscribers.
    [[nodiscard]] bool becomesActive(xcb_window_t window) {
        bool told = false;
        const auto subscription = m_connection->subscribe([&](const xcb_generic_event_t& event) {
            const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
            const bool isWord = event.response_type == XCB_PROPERTY_NOTIFY &&
                                change.atom == m_connection->atom("_NET_ACTIVE_WINDOW");
            told = told || (isWord && activeWindow() == window);
        });
        return waitUntil([&told] { return told; });
    }

    [[nodiscard]] xcb_window_t activeWindow() const { return X11Windows(m_connection).active(); }

    [[nodiscard]] std::uint64_t frontWindow() const {
        const auto front = m_workspace.frontmostApplication().application;
        return front ? front->window : std::uint64_t{XCB_WINDOW_NONE};
    }

    WindowManager m_manager;
    X11Workspace m_workspace{m_connection};
};

TEST_F(WorkspaceOnX11, HasTheActiveWindowInFront) {
    ForeignWindow window("editor", "Editor");
    activate(window);
    ASSERT_EQ(frontWindow(), window.id());
    const auto front = m_workspace.frontmostApplication();
    EXPECT_TRUE(front.isCertain);
    EXPECT_EQ(front.application->name, u"editor/Editor"_s);
    EXPECT_EQ(front.application->title, u"Editor"_s);
}

TEST_F(WorkspaceOnX11, HasNothingInFrontWhereThereIsNoWindow) {
    EXPECT_EQ(m_workspace.frontmostApplication(), (FrontmostApplication{std::nullopt, true}));
}

TEST_F(WorkspaceOnX11, KeepsTheWindowBeforeWhileOneOfOursIsActive) {
    ForeignWindow first;
    ForeignWindow second;
    activate(first);
    activate(second);
    QWidget own;
    activate(own);
    EXPECT_EQ(frontWindow(), second.id());
}

class WorkspaceOnX11WithDockOrDesktop : public WorkspaceOnX11,
                                        public testing::WithParamInterface<const char*> {};

TEST_P(WorkspaceOnX11WithDockOrDesktop, KeepsTheWindowBeforeWhileTheDesktopIsActive) {
    ForeignWindow window;
    activate(window);
    ForeignWindow dockOrDesktop("panel", "Panel", GetParam());
    activate(dockOrDesktop);
    EXPECT_EQ(frontWindow(), window.id());
}

INSTANTIATE_TEST_SUITE_P(
    Every,
    WorkspaceOnX11WithDockOrDesktop,
    testing::Values("_NET_WM_WINDOW_TYPE_DOCK", "_NET_WM_WINDOW_TYPE_DESKTOP"));

TEST_F(WorkspaceOnX11, CountsADialogAsAWindow) {
    ForeignWindow dialog("editor", "Editor", "_NET_WM_WINDOW_TYPE_DIALOG");
    activate(dialog);
    EXPECT_EQ(frontWindow(), dialog.id());
}

TEST_F(WorkspaceOnX11, HasNothingInFrontOnceTheWindowIsGone) {
    QWidget own;
    {
        ForeignWindow window;
        activate(window);
        activate(own);
        ASSERT_EQ(frontWindow(), window.id());
    }
    EXPECT_TRUE(waitUntil([this] { return frontWindow() == XCB_WINDOW_NONE; }));
}

TEST_F(WorkspaceOnX11, HasNothingInFrontOnceTheWindowIsIconified) {
    ForeignWindow window;
    activate(window);
    QWidget own;
    activate(own);
    window.iconify();
    EXPECT_TRUE(waitUntil([this] { return frontWindow() == XCB_WINDOW_NONE; }));
}

TEST_F(WorkspaceOnX11, KnowsAWindowThatIsStillShown) {
    ForeignWindow window;
    activate(window);
    EXPECT_TRUE(m_workspace.isShown({window.id(), {}}));
    window.iconify();
    EXPECT_TRUE(waitUntil([&] { return !m_workspace.isShown({window.id(), {}}); }));
}

TEST_F(WorkspaceOnX11, KnowsAWindowOfAnotherDesktop) {
    ForeignWindow window;
    activate(window);
    ASSERT_TRUE(m_manager.showDesktop(1));
    EXPECT_TRUE(waitUntil([&] { return !m_workspace.isShown({window.id(), {}}); }));
    ASSERT_TRUE(m_manager.showDesktop(0));
    EXPECT_TRUE(waitUntil([&] { return m_workspace.isShown({window.id(), {}}); }));
}

TEST_F(WorkspaceOnX11, KnowsTheWindowThatReceivesTheKeys) {
    ForeignWindow first;
    ForeignWindow second;
    activate(first);
    EXPECT_TRUE(m_workspace.receivesKeys({first.id(), {}}));
    activate(second);
    EXPECT_FALSE(m_workspace.receivesKeys({first.id(), {}}));
}

TEST_F(WorkspaceOnX11, CountsADialogOfAWindowAsTheWindow) {
    ForeignWindow window;
    ForeignWindow dialog;
    ForeignWindow dialogOfTheDialog;
    dialog.setOwner(window.id());
    dialogOfTheDialog.setOwner(dialog.id());
    activate(window);
    activate(dialog);
    activate(dialogOfTheDialog);
    EXPECT_TRUE(m_workspace.receivesKeys({window.id(), {}}));
    dialog.setOwner(dialogOfTheDialog.id());
    EXPECT_FALSE(m_workspace.receivesKeys({window.id(), {}}));
}

TEST_F(WorkspaceOnX11, KnowsThatAnotherProgramHasTheKeyboardForItself) {
    ForeignWindow window;
    ForeignWindow lock;
    activate(window);
    ASSERT_TRUE(lock.grabKeyboard());
    EXPECT_FALSE(m_workspace.receivesKeys({window.id(), {}}));
    lock.ungrabKeyboard();
    EXPECT_TRUE(m_workspace.receivesKeys({window.id(), {}}));
}

TEST_F(WorkspaceOnX11, LeavesTheFocusAloneWhenItLooksForAGrab) {
    ForeignWindow window;
    activate(window);
    ASSERT_TRUE(waitUntil([&window] { return window.hasFocus(); }));
    m_connection->waitForServer();
    const auto before = window.focusChanges();
    EXPECT_TRUE(m_workspace.receivesKeys({window.id(), {}}));
    EXPECT_EQ(window.focusChanges(), before);
}

TEST_F(WorkspaceOnX11, TellsWhenAnotherWindowComesToTheFrontAndWhenOneGoes) {
    std::vector<std::uint64_t> told;
    m_workspace.onFrontmostChanged([&] { told.push_back(frontWindow()); });
    auto first = std::make_unique<ForeignWindow>();
    activate(*first);
    EXPECT_TRUE(waitUntil([&] { return !told.empty() && told.back() == first->id(); }));
    QWidget own;
    activate(own);
    first.reset();
    EXPECT_TRUE(waitUntil([&] { return told.back() == XCB_WINDOW_NONE; }));
    m_workspace.onFrontmostChanged({});
}

TEST_F(WorkspaceOnX11, BringsAWindowToTheFront) {
    ForeignWindow window;
    activate(window);
    const auto front = m_workspace.frontmostApplication().application;
    ASSERT_TRUE(front);
    QWidget own;
    activate(own);
    EXPECT_TRUE(m_workspace.activate(*front));
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window.id() && window.hasFocus(); }));
}

TEST_F(WorkspaceOnX11, BringsAWindowToTheFrontAfterAnotherTookTheFocusByItself) {
    ForeignWindow window;
    activate(window);
    const auto front = m_workspace.frontmostApplication().application;
    ASSERT_TRUE(front);
    QWidget own;
    activate(own);
    m_keyboard.type({KEY_A});
    ASSERT_TRUE(waitUntil([this] { return m_connection->lastUserTime() != XCB_CURRENT_TIME; }));
    ForeignWindow other;
    other.show();
    ASSERT_TRUE(becomesActive(other.id()));
    EXPECT_TRUE(m_workspace.activate(*front));
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == window.id() && window.hasFocus(); }));
}

TEST_F(WorkspaceOnX11, CannotActivateAWindowThatNoLongerExists) {
    QWidget own;
    activate(own);
    RunningApplication gone;
    {
        const ForeignWindow window;
        gone.window = window.id();
    }
    ASSERT_TRUE(waitUntil(
        [&] { return !X11Windows(m_connection).exists(static_cast<xcb_window_t>(gone.window)); }));
    EXPECT_FALSE(m_workspace.activate(gone));
    m_connection->waitForServer();
    EXPECT_EQ(activeWindow(), own.winId());
}

TEST_F(WorkspaceOnX11, TellsWhenAnotherDesktopComesToTheFront) {
    int changes = 0;
    m_workspace.onActiveSpaceChanged([&changes] { ++changes; });
    ASSERT_TRUE(m_manager.showDesktop(1));
    EXPECT_TRUE(waitUntil([&changes] { return changes == 1; }));
    ASSERT_TRUE(m_manager.showDesktop(0));
    EXPECT_TRUE(waitUntil([&changes] { return changes == 2; }));
}

TEST_F(WorkspaceOnX11, TellsNothingWhenTheSameDesktopIsNamedAgain) {
    int changes = 0;
    m_workspace.onActiveSpaceChanged([&changes] { ++changes; });
    const std::uint32_t desktop = 0;
    xcb_change_property(
        m_connection->xcb(),
        XCB_PROP_MODE_REPLACE,
        m_connection->root(),
        m_connection->atom("_NET_CURRENT_DESKTOP"),
        XCB_ATOM_CARDINAL,
        32,
        1,
        &desktop);
    // The switch goes by another connection, and must not be overtaken.
    m_connection->waitForServer();
    ASSERT_TRUE(m_manager.showDesktop(1));
    EXPECT_TRUE(waitUntil([&changes] { return changes > 0; }));
    EXPECT_EQ(changes, 1);
    ASSERT_TRUE(m_manager.showDesktop(0));
}

TEST_F(WorkspaceOnX11, NotesTheTimeOfAKeyInAWindowOfOurs) {
    QWidget own;
    activate(own);
    const auto before = m_connection->lastUserTime();
    m_keyboard.type({KEY_A});
    EXPECT_TRUE(waitUntil([&] { return m_connection->lastUserTime() > before; }));
}

class WorkspaceOnX11WithoutManager : public X11Test {
protected:
    X11Workspace m_workspace{m_connection};
};

TEST_F(WorkspaceOnX11WithoutManager, HasTheWindowWithTheFocusInFront) {
    ForeignWindow window;
    window.takeFocus();
    const auto front = m_workspace.frontmostApplication();
    EXPECT_FALSE(front.isCertain);
    ASSERT_TRUE(front.application);
    EXPECT_EQ(front.application->window, window.id());
}

TEST_F(WorkspaceOnX11WithoutManager, GivesTheFocusBack) {
    ForeignWindow window;
    window.takeFocus();
    const auto front = m_workspace.frontmostApplication().application;
    ASSERT_TRUE(front);
    QWidget own;
    own.show();
    own.activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return !window.hasFocus(); }));
    EXPECT_TRUE(m_workspace.activate(*front));
    EXPECT_TRUE(waitUntil([&window] { return window.hasFocus(); }));
}

TEST_F(WorkspaceOnX11WithoutManager, DoesNotBelieveWhatACrashedManagerLeftBehind) {
    ForeignWindow window;
    window.takeFocus();
    const xcb_window_t gone = window.id() + 1000;
    for (const auto* property : {"_NET_SUPPORTING_WM_CHECK", "_NET_ACTIVE_WINDOW"}) {
        xcb_change_property(
            m_connection->xcb(),
            XCB_PROP_MODE_REPLACE,
            m_connection->root(),
            m_connection->atom(property),
            XCB_ATOM_WINDOW,
            32,
            1,
            &gone);
    }
    const auto front = m_workspace.frontmostApplication().application;
    for (const auto* property : {"_NET_SUPPORTING_WM_CHECK", "_NET_ACTIVE_WINDOW"})
        xcb_delete_property(
            m_connection->xcb(), m_connection->root(), m_connection->atom(property));
    m_connection->waitForServer();
    ASSERT_TRUE(front);
    EXPECT_EQ(front->window, window.id());
}

} // namespace

} // namespace quorvane
