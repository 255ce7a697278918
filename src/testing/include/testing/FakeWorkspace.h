// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>
#include <testing/CallLog.h>

namespace quorvane {

class FakeWorkspace final : public Workspace {
public:
    explicit FakeWorkspace(CallLog& log) : m_log(log) {}

    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override {
        m_log.add("frontmostApplication");
        return m_front;
    }

    [[nodiscard]] QScreen* focusedScreen() const override { return nullptr; }

    [[nodiscard]] bool activate(const RunningApplication& application) override {
        m_log.add("activate " + application.name.toStdString());
        return m_canActivate;
    }

    void onActiveSpaceChanged(std::function<void()> handler) override {
        m_spaceChanged = std::move(handler);
    }

    void setFront(std::optional<RunningApplication> front) { m_front = std::move(front); }

    /// From now on, the windows of other programs no longer exist.
    void loseWindows() { m_canActivate = false; }

    void changeSpace() {
        if (m_spaceChanged)
            m_spaceChanged();
    }

private:
    CallLog& m_log;
    std::optional<RunningApplication> m_front;
    bool m_canActivate = true;
    std::function<void()> m_spaceChanged;
};

} // namespace quorvane
