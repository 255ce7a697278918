// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace quorvane {

/// A zone's offset as CPython's zoneinfo has it, from the same compiled database.
struct OracleOffset {
    QString identifier;
    double secondsSince1970 = 0;
    int secondsFromGMT = 0;
};

/// Every zone of the system over two centuries; empty where the interpreter is missing.
[[nodiscard]] const std::vector<OracleOffset>& oracleOffsets();

/// Every zone of the system at these whole seconds since 1970.
[[nodiscard]] std::vector<OracleOffset> oracleOffsetsAt(const std::vector<qint64>& instants);

} // namespace quorvane
