// SPDX-License-Identifier: MIT
#include <settings/DiskFileWriter.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>

namespace quorvane {

namespace {

/// The XDG Base Directory Specification asks for mode 0700 where a folder is missing.
bool makePrivateFolder(const QString& path) {
    const QFileInfo info(path);
    if (info.exists())
        return info.isDir();
    if (!makePrivateFolder(info.path()))
        return false;
    return ::mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || QFileInfo(path).isDir();
}

class DiskFileReplacement final : public FileReplacement {
public:
    explicit DiskFileReplacement(const QString& path) : m_file(path) {}

    bool makeFolder() override { return makePrivateFolder(QFileInfo(m_file.fileName()).path()); }

    bool open() override { return m_file.open(QIODevice::WriteOnly); }

    bool restrictToOwner() override {
        return m_file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }

    bool write(const QByteArray& contents) override {
        return m_file.write(contents) == contents.size() && m_file.flush();
    }

    bool commit() override { return m_file.commit(); }

private:
    QSaveFile m_file;
};

} // namespace

std::unique_ptr<FileReplacement> DiskFileWriter::replace(const QString& path) {
    return std::make_unique<DiskFileReplacement>(path);
}

bool DiskFileWriter::rename(const QString& from, const QString& to) {
    // QFile::rename() would copy where it cannot rename, and drop half a copy where that fails.
    const auto source = QFile::encodeName(from);
    const auto target = QFile::encodeName(to);
    return ::renameat2(
               AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0;
}

} // namespace quorvane
