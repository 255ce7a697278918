// SPDX-License-Identifier: MIT
#include "VectorFile.h"

#include "VectorKinds.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace quorvane {

using namespace Qt::StringLiterals;

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

/// A plain text is one row that holds all of its lines.
QByteArray rowOfLines(QFile& file) {
    QJsonArray lines;
    while (!file.atEnd())
        lines.append(QString::fromUtf8(file.readLine().trimmed()));
    return QJsonDocument(QJsonObject{{"lines"_L1, lines}}).toJson(QJsonDocument::Compact);
}

QByteArrayList rowsOf(QFile& file) {
    if (file.fileName().endsWith(".txt"_L1))
        return {rowOfLines(file)};
    QByteArrayList rows;
    while (!file.atEnd()) {
        const auto line = file.readLine().trimmed();
        if (!line.isEmpty())
            rows.append(line);
    }
    return rows;
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
    for (const auto& row : rowsOf(file))
        ++(runRow(check, row, zones, out) ? count.passed : count.failed);
    if (count.passed + count.failed == 0)
        return refused(path, "has no rows", out);
    out << path << ": " << count.passed << " passed, " << count.failed << " failed\n";
    return count;
}

} // namespace quorvane
