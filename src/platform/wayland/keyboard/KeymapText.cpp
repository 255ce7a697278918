// SPDX-License-Identifier: MIT
#include <cerrno>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland_keyboard/KeymapText.h>

namespace quorvane {

namespace {

// The longest that xkeyboard-config makes has some 70 kB.
constexpr std::uint32_t longestKeymap = 1 << 20;

} // namespace

int keymapFile(const QByteArray& text) {
    const int file = memfd_create("quorvane-keymap", MFD_CLOEXEC);
    if (file < 0)
        return -1;
    const auto size = static_cast<std::size_t>(text.size()) + 1;
    if (write(file, text.constData(), size) == static_cast<ssize_t>(size))
        return file;
    close(file);
    return -1;
}

QByteArray keymapTextIn(int file, std::uint32_t size) {
    if (size == 0 || size > longestKeymap)
        return {};
    // Not mapped: a file that shrinks would end us.
    QByteArray text(static_cast<qsizetype>(size), Qt::Uninitialized);
    std::size_t done = 0;
    while (done < size) {
        const auto count = pread(file, text.data() + done, size - done, static_cast<off_t>(done));
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            return {};
    }
    const auto end = text.indexOf('\0');
    return end < 0 ? text : text.first(end);
}

} // namespace quorvane
