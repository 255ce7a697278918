// SPDX-License-Identifier: MIT
#include <QFile>

#include <array>
#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>
#include <wayland_sway/SwaySocket.h>

namespace quorvane {

namespace {

// A compositor that takes nothing more than this has stopped; it gets no more.
constexpr qsizetype mostOutgoing = 1 << 20;

int connectedTo(const QByteArray& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.isEmpty() || path.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return -1;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (descriptor < 0)
        return -1;
    // The socket's own interface asks for the cast.
    const auto* generic = reinterpret_cast<const sockaddr*>(&address); // NOLINT(*-reinterpret-cast)
    if (connect(descriptor, generic, sizeof address) == 0)
        return descriptor;
    close(descriptor);
    return -1;
}

bool canBeTriedAgain() {
    return errno == EAGAIN || errno == EINTR;
}

} // namespace

std::unique_ptr<SwaySocket> SwaySocket::open(const QString& path, Handlers handlers) {
    const int descriptor = connectedTo(QFile::encodeName(path));
    if (descriptor < 0)
        return nullptr;
    return std::unique_ptr<SwaySocket>(new SwaySocket(descriptor, std::move(handlers)));
}

SwaySocket::SwaySocket(int descriptor, Handlers handlers)
    : m_descriptor(descriptor),
      m_handlers(std::move(handlers)),
      m_readable(descriptor, QSocketNotifier::Read),
      m_writable(descriptor, QSocketNotifier::Write) {
    m_writable.setEnabled(false);
    QObject::connect(&m_readable, &QSocketNotifier::activated, &m_readable, [this] { read(); });
    QObject::connect(&m_writable, &QSocketNotifier::activated, &m_writable, [this] { write(); });
}

SwaySocket::~SwaySocket() {
    m_readable.setEnabled(false);
    m_writable.setEnabled(false);
    close(m_descriptor);
}

void SwaySocket::send(const QByteArray& data) {
    if (!m_readable.isEnabled())
        return;
    m_outgoing += data;
    write();
    if (m_outgoing.size() > mostOutgoing)
        giveUp();
}

void SwaySocket::read() {
    std::array<char, 1 << 16> piece{};
    const auto count = recv(m_descriptor, piece.data(), piece.size(), 0);
    if (count > 0)
        m_handlers.received(QByteArray(piece.data(), count));
    else if (count == 0 || !canBeTriedAgain())
        giveUp();
}

void SwaySocket::write() {
    while (!m_outgoing.isEmpty()) {
        const auto size = static_cast<std::size_t>(m_outgoing.size());
        const auto count = ::send(m_descriptor, m_outgoing.constData(), size, MSG_NOSIGNAL);
        if (count < 0)
            break;
        m_outgoing.remove(0, count);
    }
    m_writable.setEnabled(!m_outgoing.isEmpty() && canBeTriedAgain());
}

void SwaySocket::giveUp() {
    if (!m_readable.isEnabled())
        return;
    m_readable.setEnabled(false);
    m_writable.setEnabled(false);
    m_outgoing.clear();
    m_handlers.lost();
}

} // namespace quorvane
