// SPDX-License-Identifier: MIT
#include <platform/LockableWorkspace.h>
#include <testing/CallLog.h>
#include <testing/FakeWorkspace.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class LockableWorkspaceTest : public testing::Test {
protected:
    LockableWorkspaceTest() {
        auto below = std::make_unique<FakeWorkspace>(m_log);
        m_below = below.get();
        m_workspace =
            std::make_unique<LockableWorkspace>(std::move(below), [this] { return m_isLocked; });
    }

    VirtualMainQueue m_queue;
    CallLog m_log{m_queue};
    bool m_isLocked = false;
    FakeWorkspace* m_below = nullptr;
    std::unique_ptr<LockableWorkspace> m_workspace;
    const RunningApplication m_editor{7, u"editor"_s};
};

TEST_F(LockableWorkspaceTest, TellsWhatTheDesktopTellsWhileTheScreenIsNotLocked) {
    m_below->setFront(m_editor);
    const FrontmostApplication front{m_editor, true};
    EXPECT_EQ(m_workspace->frontmostApplication(), front);
    EXPECT_TRUE(m_workspace->receivesKeys(m_editor));
}

TEST_F(LockableWorkspaceTest, HasNothingInFrontOfALock) {
    m_below->setFront(m_editor);
    m_isLocked = true;
    const FrontmostApplication none{std::nullopt, true};
    EXPECT_EQ(m_workspace->frontmostApplication(), none);
    EXPECT_FALSE(m_workspace->receivesKeys(m_editor));
    EXPECT_TRUE(m_workspace->isShown(m_editor));
}

TEST_F(LockableWorkspaceTest, IsCertainOfTheLockWhereTheDesktopTellsOfNoWindow) {
    m_below->setFrontUncertain();
    EXPECT_FALSE(m_workspace->frontmostApplication().isCertain);
    m_isLocked = true;
    EXPECT_TRUE(m_workspace->frontmostApplication().isCertain);
}

} // namespace
} // namespace quorvane
