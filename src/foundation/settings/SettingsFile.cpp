// SPDX-License-Identifier: MIT
#include <settings/SettingsFile.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace quorvane::settingsfile {

using namespace Qt::StringLiterals;

namespace {

State stateOf(int openError) {
    return openError == ENOENT || openError == ENOTDIR ? State::Absent : State::Closed;
}

bool isPlainFile(int descriptor) {
    struct stat status {};

    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

Contents parsed(const QByteArray& bytes) {
    const auto document = QJsonDocument::fromJson(bytes);
    if (!document.isObject())
        return {State::NoObject, {}};
    return {State::Object, document.object()};
}

/// The values to be written, of which the file has some; none if it must not be written.
std::optional<QJsonObject>
merged(FileWriter& files, const FileChange& change, const Contents& stored) {
    if (stored.state == State::Closed)
        return std::nullopt;
    if (stored.state == State::NoObject && !moveAside(files, change.path))
        return std::nullopt;
    if (stored.state != State::Object)
        return change.values;
    auto values = stored.values;
    for (const auto& key : change.changed)
        values.insert(key, change.values.value(key));
    return values;
}

} // namespace

Contents read(const QString& path) {
    // Without waiting, as a pipe that nobody writes to would let us.
    constexpr int mode = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const int descriptor = ::open(QFile::encodeName(path).constData(), mode);
    if (descriptor < 0)
        return {stateOf(errno), {}};
    QFile file;
    const bool isOpen = file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    if (!isPlainFile(descriptor))
        return {State::NoObject, {}};
    const auto bytes = file.readAll();
    if (!isOpen || file.error() != QFileDevice::NoError)
        return {State::Closed, {}};
    return parsed(bytes);
}

std::optional<QString> moveAside(FileWriter& files, const QString& path) {
    const auto isTaken = [](const QString& candidate) {
        return QFileInfo::exists(candidate) || QFileInfo(candidate).isSymLink();
    };
    QString aside;
    for (int number = 1; aside.isEmpty() || isTaken(aside); ++number)
        aside = path + u".unreadable-%1"_s.arg(number);
    return files.rename(path, aside) ? std::optional(aside) : std::nullopt;
}

bool apply(FileWriter& files, const FileChange& change) {
    const auto replacement = files.replace(change.path);
    if (!replacement->makeFolder())
        return false;
    replacement->excludeOthers();
    const auto stored = read(change.path);
    const auto values = merged(files, change, stored);
    if (!values)
        return false;
    if (stored.state == State::Object && *values == stored.values)
        return true;
    return replacement->open() && replacement->restrictToOwner() &&
           replacement->write(QJsonDocument(*values).toJson()) && replacement->commit();
}

} // namespace quorvane::settingsfile
