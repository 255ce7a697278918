// SPDX-License-Identifier: MIT
// Preloaded into the program under test by harness/moved_clock.py: a wall clock that is ahead of
// the system's by as many seconds as stand in a file. What measures how time passes is left alone.

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Null where there is no file.
const volatile std::int64_t* mappedSeconds() {
    const char* path = std::getenv("QUORVANE_MOVED_CLOCK");
    const int file = path != nullptr ? ::open(path, O_RDONLY | O_CLOEXEC) : -1;
    if (file < 0)
        return nullptr;
    void* place = ::mmap(nullptr, sizeof(std::int64_t), PROT_READ, MAP_SHARED, file, 0);
    ::close(file);
    return place != MAP_FAILED ? static_cast<const std::int64_t*>(place) : nullptr;
}

std::int64_t secondsAhead() {
    static const auto* const seconds = mappedSeconds();
    return seconds != nullptr ? *seconds : 0;
}

} // namespace

extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept {
    const auto result = static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
    if (result == 0 && clock == CLOCK_REALTIME)
        time->tv_sec += secondsAhead();
    return result;
}
