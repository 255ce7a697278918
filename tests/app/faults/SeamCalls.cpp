// SPDX-License-Identifier: MIT
#include "SeamCalls.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QString withoutComments(QString source) {
    static const QRegularExpression comment(QStringLiteral(R"(//[^\n]*)"));
    return source.remove(comment);
}

/// The virtual functions of each class, but for its destructor.
void collect(const QString& source, std::set<std::string>& calls) {
    static const QRegularExpression declaration(
        QStringLiteral(R"((?<!enum )\bclass\s+(\w+)|\bvirtual\b[^;{}~]*?\b(\w+)\s*\()"));
    QString seam;
    for (const auto& found : declaration.globalMatch(source)) {
        if (found.hasCaptured(1))
            seam = found.captured(1);
        else
            calls.insert((seam + u"::"_s + found.captured(2)).toStdString());
    }
}

void collectFrom(const QString& header, std::set<std::string>& calls) {
    QFile file(header);
    if (file.open(QFile::ReadOnly))
        collect(withoutComments(QString::fromUtf8(file.readAll())), calls);
}

} // namespace

std::set<std::string> seamCalls() {
    std::set<std::string> calls;
    QDirIterator platform(QStringLiteral(PLATFORM_HEADERS), {u"*.h"_s});
    while (platform.hasNext())
        collectFrom(platform.next(), calls);
    for (const auto& header : {u"FileWriter.h"_s, u"FileReplacement.h"_s})
        collectFrom(QStringLiteral(SETTINGS_HEADERS "/") + header, calls);
    return calls;
}

} // namespace quorvane
