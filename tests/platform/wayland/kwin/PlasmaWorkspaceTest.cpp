// SPDX-License-Identifier: MIT
#include "TestPlasmaWindows.h"

#include <support/WaitUntil.h>

#include <QCoreApplication>
#include <gmock/gmock.h>

#include <chrono>
#include <wayland_kwin/PlasmaWorkspace.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;

class WorkspaceOnKwin : public testing::Test {
protected:
    static constexpr auto active = TestPlasmaWindows::active;

    TestCompositor m_compositor;
    TestPlasmaWindows m_list{m_compositor};
    std::shared_ptr<WaylandConnection> m_connection;
    std::unique_ptr<PlasmaWorkspace> m_workspace;

    void SetUp() override {
        const auto own = static_cast<std::uint32_t>(QCoreApplication::applicationPid());
        m_list.add("editor", {.appId = "org.xfce.mousepad", .pid = 1, .state = active});
        m_list.add("other", {.appId = "foot", .pid = 2});
        m_list.add("panel", {.appId = "quorvane", .pid = own});
        m_connection = WaylandConnection::open(m_compositor.environment(), 10s).connection;
        m_connection->listen();
        m_workspace = std::make_unique<PlasmaWorkspace>(
            std::make_shared<PlasmaWindows>(m_connection),
            std::make_unique<PlasmaVirtualDesktops>(m_connection));
        settle();
        settle(); // for what was asked for in the first answer
    }

    void settle() { ASSERT_TRUE(m_connection->settle(10s)); }

    void moveKeyboard(const std::string& from, const std::string& to) {
        m_list.setState(from, 0);
        m_list.setState(to, active);
        settle();
    }

    QString nameInFront() {
        const auto front = m_workspace->frontmostApplication();
        EXPECT_TRUE(front.isCertain);
        return front.application ? front.application->name : QString();
    }

    RunningApplication inFront() { return m_workspace->frontmostApplication().application.value(); }
};

TEST_F(WorkspaceOnKwin, TellsTheWindowThatHasTheKeyboard) {
    EXPECT_EQ(nameInFront(), u"org.xfce.mousepad"_s);
    EXPECT_EQ(inFront().title, u"Mousepad"_s);
    EXPECT_TRUE(m_workspace->receivesKeys(inFront()));
}

TEST_F(WorkspaceOnKwin, TakesTheOneBeforeWhileOursIsInFront) {
    int changes = 0;
    m_workspace->onFrontmostChanged([&changes] { ++changes; });
    moveKeyboard("editor", "panel");
    EXPECT_EQ(nameInFront(), u"org.xfce.mousepad"_s);
    EXPECT_FALSE(m_workspace->receivesKeys(inFront()));
    EXPECT_GT(changes, 0);
}

TEST_F(WorkspaceOnKwin, GivesTheKeyboardBack) {
    moveKeyboard("editor", "panel");
    EXPECT_TRUE(m_workspace->activate(inFront()));
    settle();
    EXPECT_THAT(m_list.activated(), ElementsAre("editor"));
}

TEST_F(WorkspaceOnKwin, LetsNoOlderWindowTakeThePlaceOfOneThatIsGone) {
    moveKeyboard("other", "editor");
    moveKeyboard("editor", "panel");
    const auto editor = inFront();
    m_list.close("editor");
    settle();
    EXPECT_EQ(nameInFront(), QString());
    EXPECT_FALSE(m_workspace->activate(editor));
}

TEST_F(WorkspaceOnKwin, CountsNoMinimisedWindow) {
    moveKeyboard("editor", "panel");
    m_list.setState("editor", TestPlasmaWindows::minimised);
    settle();
    EXPECT_EQ(nameInFront(), QString());
}

TEST_F(WorkspaceOnKwin, CountsNoWindowOnAnotherDesktop) {
    int switches = 0;
    m_workspace->onActiveSpaceChanged([&switches] { ++switches; });
    moveKeyboard("editor", "panel");
    m_list.showDesktop("2");
    settle();
    EXPECT_EQ(nameInFront(), QString());
    EXPECT_EQ(switches, 1);
    m_list.setState("editor", TestPlasmaWindows::onAllDesktops);
    settle();
    EXPECT_EQ(nameInFront(), u"org.xfce.mousepad"_s);
}

TEST_F(WorkspaceOnKwin, SaysThatNothingIsKnownWhenKwinHasGone) {
    m_compositor.stop();
    EXPECT_TRUE(waitUntil([this] { return !m_workspace->frontmostApplication().isCertain; }));
    EXPECT_EQ(m_workspace->frontmostApplication().application, std::nullopt);
}

} // namespace
} // namespace quorvane
