// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

#include <functional>
#include <memory>

namespace quorvane {

/// A workspace that nothing is in front of while the screen is locked: what is typed then goes to
/// the lock, be it that the desktop tells of the windows behind it, or of none.
class LockableWorkspace final : public Workspace {
public:
    LockableWorkspace(std::unique_ptr<Workspace> workspace, std::function<bool()> isLocked);
    ~LockableWorkspace() override;

    LockableWorkspace(const LockableWorkspace&) = delete;
    LockableWorkspace& operator=(const LockableWorkspace&) = delete;

    [[nodiscard]] FrontmostApplication frontmostApplication() const override;
    [[nodiscard]] bool isShown(const RunningApplication& application) const override;
    [[nodiscard]] bool receivesKeys(const RunningApplication& application) const override;
    [[nodiscard]] QScreen* focusedScreen() const override;
    [[nodiscard]] bool activate(const RunningApplication& application) override;
    void onFrontmostChanged(std::function<void()> handler) override;
    void onActiveSpaceChanged(std::function<void()> handler) override;

private:
    std::unique_ptr<Workspace> m_workspace;
    std::function<bool()> m_isLocked;
};

} // namespace quorvane
