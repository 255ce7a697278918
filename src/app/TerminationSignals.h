// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace quorvane {

/// Receives the signals by which a session or a terminal ends a process (SIGTERM, SIGINT, SIGHUP)
/// in the event loop, while it lives; before and after, they end the process at once. Blocks no
/// signal, which the programs that we start would inherit. One at a time.
class TerminationSignals final : public QObject {
public:
    /// Needs an application object. A signal that the process was started to ignore stays ignored.
    explicit TerminationSignals(std::function<void()> handler);
    ~TerminationSignals() override;

private:
    static void wakeUp(int signal);

    /// A signal's handler is given nothing but the signal.
    static inline std::atomic<int> handlersDescriptor = -1;

    std::function<void()> m_handler;
    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quorvane
