// SPDX-License-Identifier: MIT
// Preloaded into the program under test by harness/contacts.py: a line for each address that it
// connects to, and for each socket that is no local one.

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

void note(std::string line) {
    const char* path = std::getenv("QUORVANE_CONTACTS");
    if (path == nullptr)
        return;
    const int file = ::open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return;
    line += '\n';
    static_cast<void>(!::write(file, line.data(), line.size()));
    ::close(file);
}

/// An address without a file begins with '@'.
std::string nameOf(const sockaddr* address, socklen_t length) {
    if (address->sa_family != AF_UNIX)
        return "family " + std::to_string(address->sa_family);
    const auto* local = reinterpret_cast<const sockaddr_un*>(address); // NOLINT: sockets are so
    std::string name(local->sun_path, length - offsetof(sockaddr_un, sun_path));
    if (!name.empty() && name.front() == '\0')
        name.front() = '@';
    return name.substr(0, name.find('\0'));
}

} // namespace

extern "C" int socket(int domain, int type, int protocol) noexcept {
    if (domain != AF_UNIX)
        note("domain " + std::to_string(domain));
    return static_cast<int>(::syscall(SYS_socket, domain, type, protocol));
}

extern "C" int connect(int socket, const sockaddr* address, socklen_t length) {
    const int before = errno;
    note(nameOf(address, length));
    errno = before;
    return static_cast<int>(::syscall(SYS_connect, socket, address, length));
}
