// SPDX-License-Identifier: MIT
#include <platform/LockableWorkspace.h>

#include <utility>

namespace quorvane {

LockableWorkspace::LockableWorkspace(
    std::unique_ptr<Workspace> workspace, std::function<bool()> isLocked)
    : m_workspace(std::move(workspace)),
      m_isLocked(std::move(isLocked)) {
}

LockableWorkspace::~LockableWorkspace() = default;

FrontmostApplication LockableWorkspace::frontmostApplication() const {
    // Certain also where the desktop tells nothing else: keys would go to the lock.
    return m_isLocked() ? FrontmostApplication{std::nullopt, true}
                        : m_workspace->frontmostApplication();
}

bool LockableWorkspace::isShown(const RunningApplication& application) const {
    return m_workspace->isShown(application);
}

bool LockableWorkspace::receivesKeys(const RunningApplication& application) const {
    return !m_isLocked() && m_workspace->receivesKeys(application);
}

QScreen* LockableWorkspace::focusedScreen() const {
    return m_workspace->focusedScreen();
}

bool LockableWorkspace::activate(const RunningApplication& application) {
    return m_workspace->activate(application);
}

void LockableWorkspace::onFrontmostChanged(std::function<void()> handler) {
    m_workspace->onFrontmostChanged(std::move(handler));
}

void LockableWorkspace::onActiveSpaceChanged(std::function<void()> handler) {
    m_workspace->onActiveSpaceChanged(std::move(handler));
}

} // namespace quorvane
