// SPDX-License-Identifier: MIT
#include <QFile>

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <wayland_server/WaylandSocket.h>

namespace quorvane {

using namespace Qt::StringLiterals;

std::optional<QByteArray> waylandSocketPath(const Environment& environment) {
    const auto display = environment("WAYLAND_DISPLAY").value_or(QString());
    if (display.isEmpty())
        return std::nullopt;
    if (display.startsWith('/'_L1))
        return QFile::encodeName(display);
    const auto folder = environment("XDG_RUNTIME_DIR").value_or(QString());
    if (folder.isEmpty())
        return std::nullopt;
    return QFile::encodeName(folder + '/'_L1 + display);
}

int connectToWaylandSocket(const QByteArray& path) {
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) >= sizeof name.sun_path)
        return -1;
    std::memcpy(name.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    // Non-blocking: a compositor that has stopped to take connections has a queue, which is full.
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (descriptor < 0)
        return -1;
    if (::connect(descriptor, reinterpret_cast<const sockaddr*>(&name), sizeof name) == 0)
        return descriptor;
    ::close(descriptor);
    return -1;
}

} // namespace quorvane
