// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QStringList>

namespace quorvane {

/// One of the programs beside this file, in a process of its own on $DISPLAY, for as long as this
/// object lives. It takes one order and reports in lines; some of its ways wait for go-aheads.
class ForeignProgram {
public:
    ForeignProgram(const QString& script, const QJsonObject& order);
    ~ForeignProgram();

    ForeignProgram(const ForeignProgram&) = delete;
    ForeignProgram& operator=(const ForeignProgram&) = delete;

    /// Waits for it, while the event loop runs; undefined if none comes.
    [[nodiscard]] QJsonValue nextReport();

    /// Lets it go on from where it waits for the test.
    void proceed();

    /// All texts that it has reported, but for those that `nextReport` took.
    [[nodiscard]] QStringList textsSoFar();

    [[nodiscard]] bool isRunning() const { return m_process.state() != QProcess::NotRunning; }

    void kill();

private:
    QProcess m_process;
};

} // namespace quorvane
