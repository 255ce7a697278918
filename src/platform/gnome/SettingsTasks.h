// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>

#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <memory>

namespace quorvane {

class SettingsCommand;

/// Tasks made of commands of one program. A task begins when those before it have ended, so that a
/// change is made to what the one before left.
class SettingsTasks {
public:
    using Task = std::function<void()>;
    using Lines = std::function<void(const QString&)>;

    /// The queue must outlive it.
    SettingsTasks(MainQueue& queue, QString program);
    ~SettingsTasks();

    /// Runs the task when its turn comes. It has to end with finish(), now or later.
    void add(Task task);

    /// Ends the task that runs, and begins the next.
    void finish();

    /// For the task that runs: goes on with what the command wrote, or without.
    void run(const QStringList& arguments, Lines done, Task failed);

    /// For the task that runs: one command after the other, until one fails.
    void runAll(std::deque<QStringList> commands, Task done, Task failed);

private:
    void startNext();

    MainQueue& m_queue;
    QString m_program;
    std::deque<Task> m_tasks; ///< the first one runs
    std::unique_ptr<SettingsCommand> m_command;
};

} // namespace quorvane
