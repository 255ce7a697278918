// SPDX-License-Identifier: MIT
#include <QAbstractEventDispatcher>
#include <QLoggingCategory>
#include <QSocketNotifier>

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <utility>
#include <wayland-client-protocol.h>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSocket.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcWayland, "quorvane.wayland", QtFatalMsg)

// The library would write to standard error by itself.
void logOfTheLibrary(const char* format, va_list arguments) {
    const auto text = QString::vasprintf(format, arguments).trimmed();
    qCInfo(lcWayland, "%ls", qUtf16Printable(text));
}

QString errorOf(wl_display* display) {
    const int error = wl_display_get_error(display);
    if (error != EPROTO)
        return QString::fromLocal8Bit(std::strerror(error));
    const wl_interface* interface = nullptr;
    std::uint32_t object = 0;
    const auto code = wl_display_get_protocol_error(display, &interface, &object);
    const auto name = interface != nullptr ? QString::fromUtf8(interface->name) : u"?"_s;
    return u"error %1 of %2 %3"_s.arg(code).arg(name).arg(object);
}

} // namespace

/// A question that the compositor answers when all requests before it are carried out.
struct WaylandConnection::Sync {
    Sync(wl_display* display, Handler handler)
        : callback(wl_display_sync(display)),
          done(std::move(handler)) {
        static constexpr wl_callback_listener events{answered};
        wl_callback_add_listener(callback, &events, this);
    }

    ~Sync() { wl_callback_destroy(callback); }

    Sync(const Sync&) = delete;
    Sync& operator=(const Sync&) = delete;

    static void answered(void* data, wl_callback* /*callback*/, std::uint32_t /*serial*/) {
        const auto handler = std::move(static_cast<Sync*>(data)->done);
        handler();
    }

    wl_callback* callback;
    Handler done;
};

WaylandConnection::Opened
WaylandConnection::open(const Environment& environment, std::chrono::milliseconds patience) {
    const auto path = waylandSocketPath(environment);
    const int descriptor = path ? connectToWaylandSocket(*path) : -1;
    if (descriptor < 0)
        return {};
    wl_log_set_handler_client(logOfTheLibrary);
    auto* display = wl_display_connect_to_fd(descriptor);
    if (display == nullptr)
        return {};
    const std::shared_ptr<WaylandConnection> connection(new WaylandConnection(display));
    if (connection->settle(patience))
        return {Attempt::Connected, connection};
    return {connection->isLost() ? Attempt::Absent : Attempt::Silent, nullptr};
}

WaylandConnection::WaylandConnection(wl_display* display)
    : m_display(display),
      m_globals(std::make_unique<WaylandGlobals>(display)) {
}

WaylandConnection::~WaylandConnection() {
    m_incoming.reset();
    m_outgoing.reset();
    m_globals.reset();
    wl_display_flush(m_display);
    wl_display_disconnect(m_display);
}

void WaylandConnection::listen(std::function<void()> onLost) {
    m_onLost = std::move(onLost);
    const auto descriptor = wl_display_get_fd(m_display);
    m_incoming = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    m_outgoing = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Write);
    m_outgoing->setEnabled(false);
    connect(m_incoming.get(), &QSocketNotifier::activated, this, &WaylandConnection::drain);
    connect(m_outgoing.get(), &QSocketNotifier::activated, this, &WaylandConnection::flush);
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        connect(
            dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &WaylandConnection::flush);
}

WaylandSubscription WaylandConnection::whenLost(std::function<void()> handler) {
    auto shared = std::make_shared<Handler>(std::move(handler));
    m_lostHandlers.push_back(shared);
    return WaylandSubscription(std::move(shared));
}

void WaylandConnection::flush() {
    if (m_isLost)
        return;
    const bool isSent = wl_display_flush(m_display) >= 0;
    if (m_outgoing)
        m_outgoing->setEnabled(!isSent && errno == EAGAIN);
    // What the compositor had still to say when it broke the connection is read with the rest.
}

bool WaylandConnection::settle(std::chrono::milliseconds patience) {
    const auto keepAlive = weak_from_this().lock();
    const auto end = Clock::now() + patience;
    bool isSettled = false;
    const Sync sync(m_display, [&isSettled] { isSettled = true; });
    while (!isSettled && handleEventsBefore(end)) {
    }
    return isSettled;
}

WaylandSubscription WaylandConnection::whenSettled(std::function<void()> done) {
    return WaylandSubscription(std::make_shared<Sync>(m_display, std::move(done)));
}

/// False when there is nothing more to wait for.
bool WaylandConnection::handleEventsBefore(Clock::time_point end) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    if (m_isLost || left.count() <= 0)
        return false;
    const bool isSent = wl_display_flush(m_display) >= 0 || errno != EAGAIN;
    pollfd awaited{wl_display_get_fd(m_display), POLLIN, 0};
    if (!isSent)
        awaited.events |= POLLOUT;
    if (::poll(&awaited, 1, static_cast<int>(left.count())) > 0 && awaited.revents != POLLOUT)
        readEvents();
    return !m_isLost;
}

void WaylandConnection::drain() {
    const auto keepAlive = weak_from_this().lock();
    readEvents();
    flush();
}

void WaylandConnection::readEvents() {
    while (wl_display_prepare_read(m_display) != 0) {
        if (wl_display_dispatch_pending(m_display) < 0)
            return giveUp();
    }
    // Does not wait: the socket is read as far as it goes.
    const bool isRead = wl_display_read_events(m_display) >= 0;
    if (wl_display_dispatch_pending(m_display) < 0 || !isRead)
        giveUp();
}

void WaylandConnection::giveUp() {
    if (std::exchange(m_isLost, true))
        return;
    qCInfo(lcWayland, "lost: %ls", qUtf16Printable(errorOf(m_display)));
    if (m_incoming)
        m_incoming->setEnabled(false);
    if (m_outgoing)
        m_outgoing->setEnabled(false);
    ::shutdown(wl_display_get_fd(m_display), SHUT_RDWR);
    const auto handlers = std::move(m_lostHandlers);
    for (const auto& weak : handlers) {
        if (const auto handler = weak.lock())
            (*handler)();
    }
    if (m_onLost)
        m_onLost();
}

} // namespace quorvane
