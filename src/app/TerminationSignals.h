// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace quorvane {

/// Turns the signals by which a session or a terminal ends a process (SIGTERM, SIGINT, SIGHUP) into
/// a call on the main loop. Make it before any thread starts: threads inherit the mask.
class TerminationSignals final : public QObject {
public:
    TerminationSignals();
    ~TerminationSignals() override;

    /// Needs an application. The signals that came before arrive then.
    void onSignal(std::function<void()> handler);

private:
    void read();

    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_handler;
};

} // namespace quorvane
