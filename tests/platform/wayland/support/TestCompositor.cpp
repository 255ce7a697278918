// SPDX-License-Identifier: MIT
#include "support/TestCompositor.h"

#include <QFile>

#include <semaphore>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>
#include <wayland-server-core.h>

namespace quorvane {

namespace {

constexpr auto socketName = "compositor";

int listeningSocket(const QByteArray& path) {
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    qstrncpy(name.sun_path, path.constData(), sizeof name.sun_path);
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto* address = reinterpret_cast<const sockaddr*>(&name);
    if (::bind(descriptor, address, sizeof name) != 0 || ::listen(descriptor, 8) != 0)
        qFatal("the compositor of the tests has no socket");
    return descriptor;
}

} // namespace

/// A pointer to it goes through the pipe that wakes the compositor.
struct TestCompositor::Order {
    std::function<void(wl_display*)> work;
    std::binary_semaphore isDone{0};
};

TestCompositor::TestCompositor() : m_display(wl_display_create()) {
    const auto path = QFile::encodeName(m_folder.filePath(QString::fromLatin1(socketName)));
    wl_display_add_socket_fd(m_display, listeningSocket(path));
    if (::pipe(m_orders) != 0)
        qFatal("the compositor of the tests takes no orders");
    m_orderSource = wl_event_loop_add_fd(
        wl_display_get_event_loop(m_display), m_orders[0], WL_EVENT_READABLE, carryOut, this);
    m_thread = std::thread([this] { serve(); });
}

TestCompositor::~TestCompositor() {
    stop();
}

Environment TestCompositor::environment() const {
    const auto path = m_folder.filePath(QString::fromLatin1(socketName));
    return [path](const char* name) {
        return qstrcmp(name, "WAYLAND_DISPLAY") == 0 ? std::optional(path) : std::nullopt;
    };
}

void TestCompositor::run(std::function<void(wl_display*)> work) {
    Order order{std::move(work)};
    const auto* pointer = &order;
    static_cast<void>(::write(m_orders[1], &pointer, sizeof pointer));
    order.isDone.acquire();
}

void TestCompositor::hang() {
    if (::pipe(m_hanging) != 0)
        qFatal("the compositor of the tests cannot hang");
    wl_event_loop* loop = wl_display_get_event_loop(m_display);
    run([this, loop](wl_display*) {
        wl_event_loop_add_idle(
            loop,
            [](void* data) {
                char nothing = 0;
                static_cast<void>(::read(*static_cast<int*>(data), &nothing, 1));
            },
            &m_hanging[0]);
    });
}

void TestCompositor::resume() {
    if (m_hanging[1] >= 0)
        ::close(std::exchange(m_hanging[1], -1));
}

void TestCompositor::stop() {
    resume();
    if (!m_thread.joinable())
        return;
    run([this](wl_display*) { m_isStopping = true; });
    m_thread.join();
}

int TestCompositor::carryOut(int descriptor, std::uint32_t /*mask*/, void* data) {
    auto& self = *static_cast<TestCompositor*>(data);
    Order* order = nullptr;
    static_cast<void>(::read(descriptor, &order, sizeof order));
    order->work(self.m_display);
    wl_display_flush_clients(self.m_display);
    order->isDone.release();
    return 0;
}

void TestCompositor::serve() {
    while (!m_isStopping) {
        wl_display_flush_clients(m_display);
        wl_event_loop_dispatch(wl_display_get_event_loop(m_display), -1);
    }
    wl_display_destroy_clients(m_display);
    wl_event_source_remove(m_orderSource);
    wl_display_destroy(m_display);
}

} // namespace quorvane
