// SPDX-License-Identifier: MIT
#include "SwayServer.h"

#include <QFile>

#include <array>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace quorvane {

SwayServer::SwayServer()
    : m_listening(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const auto name = QFile::encodeName(path());
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    // The socket's own interface asks for the cast.
    const auto* generic = reinterpret_cast<const sockaddr*>(&address); // NOLINT(*-reinterpret-cast)
    if (bind(m_listening, generic, sizeof address) != 0 || listen(m_listening, 1) != 0)
        qFatal("no socket at %ls", qUtf16Printable(path()));
}

SwayServer::~SwayServer() {
    stop();
}

QString SwayServer::path() const {
    return m_folder.filePath(QStringLiteral("sway"));
}

bool SwayServer::accept() {
    m_connection = ::accept4(m_listening, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    return m_connection >= 0;
}

void SwayServer::send(const QByteArray& data) const {
    const auto size = static_cast<std::size_t>(data.size());
    if (::send(m_connection, data.constData(), size, MSG_NOSIGNAL) != data.size())
        qFatal("nobody takes what sway says");
}

std::optional<SwayMessage> SwayServer::next() {
    std::array<char, 4096> piece{};
    const auto count = recv(m_connection, piece.data(), piece.size(), 0);
    if (count > 0)
        m_frames.append(QByteArray(piece.data(), count));
    return m_frames.next();
}

void SwayServer::stop() {
    for (auto* descriptor : {&m_connection, &m_listening}) {
        if (const int open = std::exchange(*descriptor, -1); open >= 0)
            close(open);
    }
}

} // namespace quorvane
