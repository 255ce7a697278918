// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>
#include <testing/CallLog.h>

#include <utility>

namespace quorvane {

/// A desktop that cannot tell what is in front, until the test says so.
class FakeWorkspace final : public Workspace {
public:
    explicit FakeWorkspace(CallLog& log) : m_log(log) {}

    [[nodiscard]] FrontmostApplication frontmostApplication() const override {
        m_log.add("frontmostApplication");
        return m_front;
    }

    [[nodiscard]] bool isShown(const RunningApplication&) const override { return m_hasWindows; }

    [[nodiscard]] bool receivesKeys(const RunningApplication& application) const override {
        m_log.add("receivesKeys " + application.name.toStdString());
        return m_hasWindows && !m_isKeyboardTaken && m_active == application;
    }

    [[nodiscard]] QScreen* focusedScreen() const override { return nullptr; }

    [[nodiscard]] bool activate(const RunningApplication& application) override {
        m_log.add("activate " + application.name.toStdString());
        if (m_hasWindows)
            m_active = application;
        return m_hasWindows;
    }

    void onFrontmostChanged(std::function<void()> handler) override {
        m_frontmostChanged = std::move(handler);
    }

    void onActiveSpaceChanged(std::function<void()> handler) override {
        m_spaceChanged = std::move(handler);
    }

    /// None: nothing is in front.
    void setFront(std::optional<RunningApplication> front) {
        m_active = front;
        m_front = {std::move(front), true};
        if (m_frontmostChanged)
            m_frontmostChanged();
    }

    /// The desktop can no longer tell what is in front.
    void setFrontUncertain() { m_front.isCertain = false; }

    /// From now on, the windows of other programs no longer exist.
    void loseWindows() { m_hasWindows = false; }

    /// Another program, such as a screen lock, has the keyboard for itself.
    void takeKeyboard() { m_isKeyboardTaken = true; }

    void changeSpace() {
        if (m_spaceChanged)
            m_spaceChanged();
    }

private:
    CallLog& m_log;
    FrontmostApplication m_front;
    std::optional<RunningApplication> m_active;
    bool m_hasWindows = true;
    bool m_isKeyboardTaken = false;
    std::function<void()> m_frontmostChanged;
    std::function<void()> m_spaceChanged;
};

} // namespace quorvane
