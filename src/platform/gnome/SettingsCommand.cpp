// SPDX-License-Identifier: MIT
#include "SettingsCommand.h"

#include <utility>

namespace quorvane {

namespace {

constexpr Seconds patience{5};
constexpr qsizetype mostBytes = 1 << 20;
constexpr int untilItIsGone = 1000; // milliseconds

} // namespace

SettingsCommand::SettingsCommand(
    MainQueue& queue, const QString& program, const QStringList& arguments, Handler done)
    : m_queue(queue),
      m_done(std::move(done)),
      m_patience(queue.after(patience, [this] { finish(std::nullopt); })) {
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.setStandardInputFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &SettingsCommand::read);
    connect(&m_process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        const bool isDone = status == QProcess::NormalExit && code == 0;
        finish(isDone ? std::optional(m_output) : std::nullopt);
    });
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(std::nullopt);
    });
    m_process.start(program, arguments, QIODevice::ReadOnly);
}

SettingsCommand::~SettingsCommand() {
    // Reports nothing any more, and leaves no program behind: one that is killed ends at once.
    m_process.disconnect(this);
    m_process.kill();
    m_process.waitForFinished(untilItIsGone);
}

void SettingsCommand::read() {
    m_output += m_process.readAllStandardOutput();
    if (m_output.size() > mostBytes)
        finish(std::nullopt);
}

/// The owner may destroy this in its handler, which must not happen in a signal of the process.
void SettingsCommand::finish(std::optional<QByteArray> output) {
    if (!m_done)
        return;
    m_patience.cancel();
    m_process.disconnect(this);
    m_process.kill();
    m_answer = m_queue.after(
        Seconds(0), [done = std::exchange(m_done, {}), output = std::move(output)]() mutable {
            const auto handler = std::move(done);
            handler(std::move(output));
        });
}

} // namespace quorvane
