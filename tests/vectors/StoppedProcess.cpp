// SPDX-License-Identifier: MIT
#include "StoppedProcess.h"

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvane {

bool stopsProcess(const std::function<void()>& action) {
    const pid_t child = ::fork();
    if (child < 0)
        std::abort();
    if (child == 0) {
        const rlimit noCoreFile{0, 0};
        ::setrlimit(RLIMIT_CORE, &noCoreFile);
        action();
        ::_exit(EXIT_SUCCESS);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT;
}

} // namespace quorvane
