// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace quorvane {

/// Receives the signals by which a session or a terminal ends a process (SIGTERM, SIGINT, SIGHUP)
/// in the event loop. Construct it before any thread starts: it blocks the signals' default effect,
/// and only threads that start later inherit that.
class TerminationSignals final : public QObject {
public:
    TerminationSignals();
    ~TerminationSignals() override;

    /// Calls the handler for signals to come, and for those that came since construction. Needs an
    /// application object.
    void onSignal(std::function<void()> handler);

private:
    void read();

    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_handler;
};

} // namespace quorvane
