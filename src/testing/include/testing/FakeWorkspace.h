// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>
#include <testing/CallLog.h>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace quorvane {

/// A desktop that cannot tell what is in front, until the test says so.
class FakeWorkspace final : public Workspace {
public:
    explicit FakeWorkspace(CallLog& log) : m_log(log) {}

    [[nodiscard]] FrontmostApplication frontmostApplication() const override {
        m_log.add("frontmostApplication");
        return m_front;
    }

    [[nodiscard]] bool isShown(const RunningApplication& application) const override {
        return std::ranges::find(m_gone, application.window) == m_gone.end();
    }

    [[nodiscard]] bool receivesKeys(const RunningApplication& application) const override {
        m_log.add("receivesKeys " + application.name.toStdString());
        return isShown(application) && !m_isKeyboardTaken && m_active == application;
    }

    [[nodiscard]] QScreen* focusedScreen() const override { return m_screen; }

    [[nodiscard]] bool activate(const RunningApplication& application) override {
        m_log.add("activate " + application.name.toStdString());
        if (!isShown(application))
            return false;
        if (m_answersActivation)
            m_active = application;
        return true;
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

    /// Its window no longer exists; nothing takes its place by itself.
    void close(const RunningApplication& application) {
        m_gone.push_back(application.window);
        if (m_active == application)
            m_active.reset();
        if (m_front.application == application)
            m_front.application.reset();
        if (m_frontmostChanged)
            m_frontmostChanged();
    }

    /// From now on the window manager leaves the focus where it is.
    void ignoreActivation() { m_answersActivation = false; }

    /// Null: the desktop does not tell.
    void setFocusedScreen(QScreen* screen) { m_screen = screen; }

    /// Another program, such as a screen lock, has the keyboard for itself.
    void takeKeyboard() { m_isKeyboardTaken = true; }

    /// This one comes to the front, which nobody is told.
    void setActive(const RunningApplication& application) { m_active = application; }

    void changeSpace() {
        if (m_spaceChanged)
            m_spaceChanged();
    }

private:
    CallLog& m_log;
    FrontmostApplication m_front;
    std::optional<RunningApplication> m_active;
    QScreen* m_screen = nullptr;
    std::vector<std::uint64_t> m_gone;
    bool m_answersActivation = true;
    bool m_isKeyboardTaken = false;
    std::function<void()> m_frontmostChanged;
    std::function<void()> m_spaceChanged;
};

} // namespace quorvane
