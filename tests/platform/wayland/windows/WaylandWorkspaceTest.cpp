// SPDX-License-Identifier: MIT
#include "TestToplevels.h"
#include "support/TestSeat.h"

#include <support/WaitUntil.h>

#include <gmock/gmock.h>

#include <chrono>
#include <wayland_windows/WaylandWorkspace.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What the desktop says of its virtual desktops is what the test says.
class TestDesktops final : public VirtualDesktops {
public:
    std::function<void()> switched;

    void onSwitched(std::function<void()> handler) override { switched = std::move(handler); }

    [[nodiscard]] QScreen* focusedScreen() const override { return nullptr; }
};

class WorkspaceOnWayland : public testing::Test {
protected:
    using State = TestToplevels::State;

    TestCompositor m_compositor;
    TestSeat m_seat{m_compositor};
    TestToplevels m_list{m_compositor};
    std::shared_ptr<WaylandConnection> m_connection =
        WaylandConnection::open(m_compositor.environment(), 10s).connection;
    TestDesktops* m_desktops = new TestDesktops; // the workspace's
    WaylandWorkspace m_workspace{
        m_connection,
        std::make_shared<WaylandToplevels>(
            m_connection, std::make_shared<WaylandSeats>(m_connection)),
        {u"org.quorvane.Quorvane"_s},
        std::unique_ptr<VirtualDesktops>(m_desktops)};

    void SetUp() override {
        m_connection->listen();
        settle();
    }

    void settle() { ASSERT_TRUE(m_connection->settle(10s)); }

    /// An editor in front, and then our panel.
    std::size_t editorBehindThePanel() {
        const auto editor = m_list.add("mousepad", {State::Activated});
        m_list.setStates(editor, {});
        m_list.add("org.quorvane.Quorvane", {State::Activated});
        settle();
        return editor;
    }

    QString nameInFront() {
        const auto front = m_workspace.frontmostApplication();
        EXPECT_TRUE(front.isCertain);
        return front.application ? front.application->name : QString();
    }
};

TEST_F(WorkspaceOnWayland, HasNothingInFrontAtFirst) {
    EXPECT_EQ(nameInFront(), QString());
}

TEST_F(WorkspaceOnWayland, TellsTheWindowThatHasTheKeyboard) {
    m_list.add("foot");
    m_list.add("org.xfce.Mousepad", {State::Maximised, State::Activated});
    settle();
    const auto front = m_workspace.frontmostApplication().application;
    ASSERT_TRUE(front);
    EXPECT_EQ(front->name, u"org.xfce.Mousepad"_s);
    EXPECT_EQ(front->title, u"Mousepad"_s);
    EXPECT_TRUE(m_workspace.receivesKeys(*front));
}

TEST_F(WorkspaceOnWayland, TakesTheOneBeforeWhileOursIsInFront) {
    editorBehindThePanel();
    const auto front = m_workspace.frontmostApplication().application;
    ASSERT_TRUE(front);
    EXPECT_EQ(front->name, u"mousepad"_s);
    EXPECT_TRUE(m_workspace.isShown(*front));
    EXPECT_FALSE(m_workspace.receivesKeys(*front));
}

TEST_F(WorkspaceOnWayland, GivesTheKeyboardBackOnlyWhereItIsAway) {
    const auto editor = editorBehindThePanel();
    const auto front = *m_workspace.frontmostApplication().application;
    EXPECT_TRUE(m_workspace.activate(front));
    settle();
    EXPECT_THAT(m_list.activations(), testing::ElementsAre(editor));
    m_list.setStates(editor, {State::Activated});
    settle();
    EXPECT_TRUE(m_workspace.activate(front));
    settle();
    EXPECT_THAT(m_list.activations(), testing::ElementsAre(editor));
}

TEST_F(WorkspaceOnWayland, TakesNoOlderOneWhereTheLastIsClosed) {
    m_list.add("foot", {});
    const auto editor = editorBehindThePanel();
    const auto front = *m_workspace.frontmostApplication().application;
    m_list.close(editor);
    settle();
    EXPECT_EQ(nameInFront(), QString());
    EXPECT_FALSE(m_workspace.isShown(front));
    EXPECT_FALSE(m_workspace.activate(front));
}

TEST_F(WorkspaceOnWayland, TakesNoneWhereTheLastIsMinimised) {
    const auto editor = editorBehindThePanel();
    m_list.setStates(editor, {State::Minimised});
    settle();
    EXPECT_EQ(nameInFront(), QString());
}

TEST_F(WorkspaceOnWayland, TakesNoneThatStayedOnTheDesktopBefore) {
    const auto editor = editorBehindThePanel();
    const auto front = *m_workspace.frontmostApplication().application;
    m_desktops->switched();
    EXPECT_TRUE(waitUntil([this] { return nameInFront().isEmpty(); }));
    EXPECT_FALSE(m_workspace.activate(front));
    m_list.setStates(editor, {State::Activated});
    settle();
    EXPECT_EQ(nameInFront(), u"mousepad"_s);
}

TEST_F(WorkspaceOnWayland, KeepsTheOneInFrontOnTheNewDesktop) {
    int switches = 0;
    m_workspace.onActiveSpaceChanged([&switches] { ++switches; });
    m_list.add("foot", {State::Activated});
    m_desktops->switched();
    EXPECT_TRUE(waitUntil([&switches] { return switches == 1; }));
    EXPECT_EQ(nameInFront(), u"foot"_s);
}

TEST_F(WorkspaceOnWayland, ReachesAWindowThroughItsDialog) {
    const auto editor = m_list.add("mousepad", {State::Activated});
    settle();
    const auto front = *m_workspace.frontmostApplication().application;
    m_list.setStates(editor, {});
    const auto dialog = m_list.add("mousepad", {State::Activated});
    settle();
    EXPECT_FALSE(m_workspace.receivesKeys(front));
    m_list.setParent(dialog, editor);
    settle();
    EXPECT_TRUE(m_workspace.receivesKeys(front));
}

TEST_F(WorkspaceOnWayland, IsUncertainOnceTheCompositorListsNothing) {
    m_list.add("foot", {State::Activated});
    settle();
    m_list.withdraw();
    EXPECT_TRUE(waitUntil([this] { return !m_workspace.frontmostApplication().isCertain; }));
    EXPECT_EQ(m_workspace.frontmostApplication().application, std::nullopt);
}

TEST_F(WorkspaceOnWayland, IsUncertainOnceTheCompositorHasGone) {
    m_list.add("foot", {State::Activated});
    settle();
    m_compositor.stop();
    EXPECT_TRUE(waitUntil([this] { return !m_workspace.frontmostApplication().isCertain; }));
}

} // namespace
} // namespace quorvane
