// SPDX-License-Identifier: MIT
#include "SettingsTasks.h"

#include "SettingsCommand.h"

#include <utility>

namespace quorvane {

SettingsTasks::SettingsTasks(MainQueue& queue, QString program)
    : m_queue(queue),
      m_program(std::move(program)) {
}

SettingsTasks::~SettingsTasks() = default;

void SettingsTasks::add(Task task) {
    m_tasks.push_back(std::move(task));
    if (m_tasks.size() == 1)
        startNext();
}

void SettingsTasks::finish() {
    m_tasks.pop_front();
    startNext();
}

void SettingsTasks::startNext() {
    if (!m_tasks.empty())
        m_tasks.front()();
}

void SettingsTasks::run(const QStringList& arguments, Lines done, Task failed) {
    m_command = std::make_unique<SettingsCommand>(
        m_queue,
        m_program,
        arguments,
        [done = std::move(done),
         failed = std::move(failed)](const std::optional<QByteArray>& output) {
            if (output)
                done(QString::fromUtf8(*output));
            else
                failed();
        });
}

void SettingsTasks::runAll(std::deque<QStringList> commands, Task done, Task failed) {
    if (commands.empty()) {
        done();
        return;
    }
    const auto next = commands.front();
    commands.pop_front();
    const auto goOn =
        [this, commands = std::move(commands), done = std::move(done), failed](const QString&) {
            runAll(commands, done, failed);
        };
    run(next, goOn, failed);
}

} // namespace quorvane
