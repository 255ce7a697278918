// SPDX-License-Identifier: MIT
#include "ForeignProgram.h"

#include "support/WaitUntil.h"

#include <QJsonDocument>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QJsonValue reportIn(const QByteArray& line) {
    return QJsonDocument::fromJson(line)[u"report"_s];
}

} // namespace

ForeignProgram::ForeignProgram(const QString& script, const QJsonObject& order) {
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setWorkingDirectory(QStringLiteral(QUORVANE_TEST_PROGRAMS));
    m_process.start(QStringLiteral(QUORVANE_TEST_PYTHON), {u"-B"_s, script});
    m_process.write(QJsonDocument(order).toJson(QJsonDocument::Compact) + '\n');
}

ForeignProgram::~ForeignProgram() {
    kill();
}

QJsonValue ForeignProgram::nextReport() {
    const bool hasReport = waitUntil([this] { return m_process.canReadLine() || !isRunning(); });
    return hasReport && m_process.canReadLine() ? reportIn(m_process.readLine())
                                                : QJsonValue(QJsonValue::Undefined);
}

void ForeignProgram::proceed() {
    m_process.write("\n");
}

QStringList ForeignProgram::textsSoFar() {
    QStringList texts;
    while (m_process.canReadLine())
        texts.append(reportIn(m_process.readLine()).toString());
    return texts;
}

void ForeignProgram::kill() {
    m_process.kill();
    m_process.waitForFinished();
}

} // namespace quorvane
