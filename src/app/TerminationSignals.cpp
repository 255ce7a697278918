// SPDX-License-Identifier: MIT
#include "TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace quorvane {

namespace {

constexpr std::array terminationSignals{SIGTERM, SIGINT, SIGHUP};

void handleBy(void (*handler)(int)) {
    struct sigaction action {};

    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : terminationSignals) {
        struct sigaction before {};

        ::sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN)
            ::sigaction(signal, &action, nullptr);
    }
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> handler)
    : m_handler(std::move(handler)),
      m_descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_notifier(std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read)) {
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        eventfd_t count = 0;
        if (::eventfd_read(m_descriptor, &count) == 0)
            m_handler();
    });
    handlersDescriptor = m_descriptor;
    handleBy(&TerminationSignals::wakeUp);
}

TerminationSignals::~TerminationSignals() {
    handleBy(SIG_DFL);
    handlersDescriptor = -1;
    m_notifier.reset();
    ::close(m_descriptor);
}

void TerminationSignals::wakeUp(int /*signal*/) {
    const int error = errno;
    ::eventfd_write(handlersDescriptor, 1);
    errno = error;
}

} // namespace quorvane
