// SPDX-License-Identifier: MIT
#pragma once

#include <loop/Deadline.h>
#include <loop/MainQueue.h>

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QStringList>

#include <functional>
#include <optional>

namespace quorvane {

/// One run of a command-line program, for which nobody waits. It is given five seconds and a
/// mebibyte to answer in, and ends with its owner.
class SettingsCommand final : public QObject {
    Q_OBJECT

public:
    /// Gets what the program wrote, or none where it failed, did not answer or wrote too much.
    using Handler = std::function<void(std::optional<QByteArray>)>;

    /// Calls `done` once, in a later iteration of the event loop, unless destroyed before.
    SettingsCommand(
        MainQueue& queue, const QString& program, const QStringList& arguments, Handler done);
    ~SettingsCommand() override;

private:
    void read();
    void finish(std::optional<QByteArray> output);

    MainQueue& m_queue;
    Handler m_done;
    QByteArray m_output;
    Deadline m_patience;
    Deadline m_answer;
    QProcess m_process;
};

} // namespace quorvane
