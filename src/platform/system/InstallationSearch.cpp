// SPDX-License-Identifier: MIT
#include <platform_system/InstallationSearch.h>

#include <QFile>
#include <QFileInfo>

namespace quorvane {

using namespace Qt::StringLiterals;
using Kind = Installation::Kind;

namespace {

/// Whether the package manager put it there.
bool isOfDebianPackage(const QString& program, const QString& root) {
    QFile files(root + u"/var/lib/dpkg/info/quorvane.list"_s);
    return files.open(QIODevice::ReadOnly) &&
           files.readAll().split('\n').contains(program.toUtf8());
}

} // namespace

Installation installationOf(const QString& program, const QString& root) {
    const auto built = QDate::fromString(QStringLiteral(QUORVANE_BUILD_DATE), Qt::ISODate);
    if (QFileInfo::exists(root + u"/.flatpak-info"_s))
        return {Kind::Flatpak, {}, built};
    if (isOfDebianPackage(program, root))
        return {Kind::DebianPackage, {}, built};
    const QFileInfo folder(QFileInfo(program).path());
    if (QFileInfo::exists(folder.filePath() + u"/CMakeCache.txt"_s))
        return {Kind::BuildFolder, folder.filePath(), built};
    const bool isOfPrograms = folder.fileName() == "bin"_L1;
    return {Kind::ByHand, isOfPrograms ? folder.path() : folder.filePath(), built};
}

} // namespace quorvane
