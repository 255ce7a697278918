// SPDX-License-Identifier: MIT
#include "VectorFile.h"

#include "VectorKinds.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace quorvane {

namespace {

QString jsonText(const QJsonValue& value) {
    // A document holds arrays and objects only.
    const auto wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.sliced(1, wrapped.size() - 2));
}

bool runRow(
    VectorCheck check, const QByteArray& line, const ZoneDatabase& zones, QTextStream& out) {
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(line, &error);
    if (!document.isObject()) {
        out << "  not a JSON object: " << error.errorString() << "\n    row      " << line << '\n';
        return false;
    }
    const VectorRow row(document.object(), zones);
    try {
        const auto comparison = check(row);
        if (holds(row, comparison))
            return true;
        out << "  row      " << line << "\n  expected " << jsonText(comparison.expected)
            << "\n  actual   " << jsonText(comparison.actual) << '\n';
    } catch (const MalformedRow& malformed) {
        out << "  malformed: " << malformed.what() << "\n  row      " << line << '\n';
    }
    return false;
}

VectorCount refused(const QString& path, const char* reason, QTextStream& out) {
    out << path << ": " << reason << '\n';
    return {.failed = 1};
}

} // namespace

VectorCount& VectorCount::operator+=(VectorCount other) {
    passed += other.passed;
    failed += other.failed;
    return *this;
}

VectorCount runVectorFile(const QString& path, const ZoneDatabase& zones, QTextStream& out) {
    const auto check = vectorCheck(QFileInfo(path).baseName());
    if (!check)
        return refused(path, "no known kind of vectors", out);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refused(path, "cannot be read", out);
    VectorCount count;
    while (!file.atEnd()) {
        const auto line = file.readLine().trimmed();
        if (!line.isEmpty())
            ++(runRow(check, line, zones, out) ? count.passed : count.failed);
    }
    if (count.passed + count.failed == 0)
        return refused(path, "has no rows", out);
    out << path << ": " << count.passed << " passed, " << count.failed << " failed\n";
    return count;
}

} // namespace quorvane
