// SPDX-License-Identifier: MIT
#pragma once

#include <x11_windows/X11Windows.h>

#include <QProcess>

namespace quorvane {

/// openbox on $DISPLAY, for as long as this object lives.
class WindowManager {
public:
    WindowManager();
    ~WindowManager();

    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;

    /// Whether it answers: its properties are there long before.
    [[nodiscard]] bool isRunning();

    /// Puts a virtual desktop in front and waits for it.
    [[nodiscard]] bool showDesktop(std::uint32_t number);

private:
    std::shared_ptr<X11Connection> m_connection;
    X11Windows m_windows;
    xcb_window_t m_probe;
    QProcess m_process;
};

} // namespace quorvane
