// SPDX-License-Identifier: MIT
// Preloaded into the program under test by harness/held_disk.py: a disk that does not answer, until
// somebody opens the gate, a pipe, for writing.

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace {

void touch(const std::string& path) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file >= 0)
        ::close(file);
}

int waitForTheGate() {
    const char* folder = std::getenv("QUORVANE_HELD_DISK");
    if (folder == nullptr)
        return 0;
    touch(std::string(folder) + "/arrived");
    const int gate = ::open((std::string(folder) + "/gate").c_str(), O_RDONLY | O_CLOEXEC);
    if (gate >= 0)
        ::close(gate);
    return 0;
}

} // namespace

extern "C" int fdatasync(int /*file*/) {
    return waitForTheGate();
}

extern "C" int fsync(int /*file*/) {
    return waitForTheGate();
}
