// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <QByteArray>
#include <QTemporaryDir>

#include <functional>
#include <thread>

struct wl_display;
struct wl_event_source;

namespace quorvane {

/// A compositor without screens, in a thread of its own: a program that waits for its answers gets
/// them. It has the globals that tests give it, and goes on until it is stopped.
class TestCompositor {
public:
    TestCompositor();
    ~TestCompositor();

    TestCompositor(const TestCompositor&) = delete;
    TestCompositor& operator=(const TestCompositor&) = delete;

    /// As a program would see it that is started in this session.
    [[nodiscard]] Environment environment() const;

    /// Calls the function in the compositor's thread, and returns when it has been done and what it
    /// has sent is under way.
    void run(std::function<void(wl_display*)> work);

    /// From now on it answers nothing and takes no connection.
    void hang();

    void resume();

    /// Ends as one that crashes: every connection is closed. What run() has made must not be used
    /// any more.
    void stop();

private:
    struct Order;

    static int carryOut(int descriptor, std::uint32_t mask, void* data);
    void serve();

    QTemporaryDir m_folder;
    wl_display* m_display;
    int m_orders[2] = {-1, -1};
    wl_event_source* m_orderSource = nullptr;
    bool m_isStopping = false;
    int m_hanging[2] = {-1, -1};
    std::thread m_thread;
};

} // namespace quorvane
