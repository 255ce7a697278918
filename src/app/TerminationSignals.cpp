// SPDX-License-Identifier: MIT
#include "TerminationSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace quorvane {

namespace {

int makeDescriptor() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, signal);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

TerminationSignals::TerminationSignals() : m_descriptor(makeDescriptor()) {
}

TerminationSignals::~TerminationSignals() {
    m_notifier.reset();
    ::close(m_descriptor);
}

void TerminationSignals::onSignal(std::function<void()> handler) {
    m_handler = std::move(handler);
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { read(); });
}

void TerminationSignals::read() {
    signalfd_siginfo info{};
    while (::read(m_descriptor, &info, sizeof info) == sizeof info)
        m_handler();
}

} // namespace quorvane
