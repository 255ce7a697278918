// SPDX-License-Identifier: MIT
#include "ZoneOracle.h"

#include <QProcess>
#include <QStringList>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

std::vector<OracleOffset> runOracle(const QStringList& instants) {
    QProcess python;
    python.start(
        u"/usr/bin/python3"_s,
        QStringList{QString::fromUtf8(ZONE_ORACLE)} + instants,
        QIODevice::ReadOnly);
    if (!python.waitForFinished() || python.exitCode() != 0)
        return {};
    std::vector<OracleOffset> offsets;
    for (const auto& line : python.readAllStandardOutput().split('\n')) {
        const auto fields = line.split(' ');
        if (fields.size() == 3)
            offsets.push_back(
                {QString::fromUtf8(fields[0]), fields[1].toDouble(), fields[2].toInt()});
    }
    return offsets;
}

} // namespace

const std::vector<OracleOffset>& oracleOffsets() {
    static const auto offsets = runOracle({});
    return offsets;
}

std::vector<OracleOffset> oracleOffsetsAt(const std::vector<qint64>& instants) {
    QStringList arguments;
    for (const auto instant : instants)
        arguments.append(QString::number(instant));
    return runOracle(arguments);
}

} // namespace quorvane
