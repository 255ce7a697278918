// SPDX-License-Identifier: MIT
#include <settings/DiskFileWriter.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

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

    ~DiskFileReplacement() override {
        if (m_folder >= 0)
            ::close(m_folder);
    }

    DiskFileReplacement(const DiskFileReplacement&) = delete;
    DiskFileReplacement& operator=(const DiskFileReplacement&) = delete;

    bool makeFolder() override { return makePrivateFolder(QFileInfo(m_file.fileName()).path()); }

    // The folder itself is locked: a file for it would be left behind among the user's. The lock
    // goes with the descriptor, however the process ends.
    void excludeOthers() override {
        const auto folder = QFile::encodeName(QFileInfo(m_file.fileName()).path());
        m_folder = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        while (m_folder >= 0 && ::flock(m_folder, LOCK_EX) != 0 && errno == EINTR) {
        }
    }

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
    int m_folder = -1; ///< locked
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
