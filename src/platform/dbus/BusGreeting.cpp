// SPDX-License-Identifier: MIT
#include "HelloMessage.h"

#include <platform_dbus/BusGreeting.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quorvane {

namespace {

using Clock = std::chrono::steady_clock;

struct SocketName {
    sockaddr_un name{};
    socklen_t size = 0; ///< 0 for a path that no socket can have
};

SocketName nameOf(const BusSocket& socket) {
    SocketName result;
    result.name.sun_family = AF_UNIX;
    const std::size_t start = socket.isAbstract ? 1 : 0;
    const auto length = static_cast<std::size_t>(socket.path.size());
    if (start + length >= sizeof result.name.sun_path)
        return result;
    std::memcpy(result.name.sun_path + start, socket.path.constData(), length);
    result.size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + start + length);
    return result;
}

QByteArray authentication() {
    return QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(::getuid()).toHex() + "\r\n";
}

} // namespace

BusGreeting::BusGreeting(const BusSocket& socket) {
    connectTo(socket);
    if (m_descriptor >= 0)
        say(authentication());
}

BusGreeting::~BusGreeting() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void BusGreeting::connectTo(const BusSocket& socket) {
    const auto address = nameOf(socket);
    m_descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const auto* name = reinterpret_cast<const sockaddr*>(&address.name);
    if (address.size != 0 && ::connect(m_descriptor, name, address.size) == 0)
        return;
    // A bus that has stopped to take connections has a queue, which is full.
    m_state = address.size != 0 && errno == EAGAIN ? State::Waiting : State::Refused;
    ::close(m_descriptor);
    m_descriptor = -1;
}

void BusGreeting::proceed() {
    std::array<char, 4096> words{};
    while (m_state == State::Waiting) {
        const auto length = ::recv(m_descriptor, words.data(), words.size(), 0);
        if (length > 0)
            hear({words.data(), length});
        else if (length < 0 && errno == EAGAIN)
            return;
        else if (length == 0 || errno != EINTR)
            m_state = State::Refused;
    }
}

BusGreeting::State BusGreeting::await(std::chrono::milliseconds patience) {
    const auto end = Clock::now() + patience;
    auto left = patience;
    while (m_state == State::Waiting && left.count() >= 0) {
        pollfd waited{m_descriptor, POLLIN, 0};
        if (::poll(&waited, 1, static_cast<int>(left.count())) > 0)
            proceed();
        left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
        if (left.count() == 0)
            break;
    }
    return m_state;
}

void BusGreeting::say(const QByteArray& words) {
    const auto size = static_cast<std::size_t>(words.size());
    // So few words always fit into the socket's buffer.
    if (::send(m_descriptor, words.constData(), size, MSG_NOSIGNAL) != words.size())
        m_state = State::Refused;
}

void BusGreeting::hear(const QByteArray& words) {
    if (m_isAuthenticated) {
        m_state = State::Answered;
        return;
    }
    m_heard += words;
    if (!m_heard.contains("\r\n"))
        return;
    // A bus that wants another kind of authentication answers, too.
    m_isAuthenticated = m_heard.startsWith("OK ");
    if (m_isAuthenticated)
        say("BEGIN\r\n" + helloMessage());
    else
        m_state = State::Answered;
}

} // namespace quorvane
