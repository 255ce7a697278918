// SPDX-License-Identifier: MIT
#include <settings/JsonFile.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLoggingCategory>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcSettings, "quorvane.settings", QtFatalMsg)

/// None if there is no such file or it holds no JSON object.
std::optional<QJsonObject> readObject(const QString& path) {
    // Opening anything but a plain file could block, as a pipe without a writer does.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const auto document = QJsonDocument::fromJson(file.readAll());
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

} // namespace

JsonFile::JsonFile(QString path, FileWriter& writer) : m_path(std::move(path)), m_writer(writer) {
    if (!QFileInfo::exists(m_path))
        return;
    if (auto values = readObject(m_path)) {
        m_values = std::move(*values);
        return;
    }
    m_isWritable = moveAside();
}

void JsonFile::setValue(const QString& key, const QJsonValue& value) {
    if (m_values.value(key) == value && !m_lacksChanges)
        return;
    m_values.insert(key, value);
    if (!m_isWritable)
        return;
    m_lacksChanges = !write();
    if (m_lacksChanges)
        qCWarning(lcSettings) << "could not write" << m_path;
}

bool JsonFile::moveAside() const {
    const auto taken = [](const QString& path) {
        return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
    };
    QString aside;
    for (int number = 1; aside.isEmpty() || taken(aside); ++number)
        aside = m_path + u".unreadable-%1"_s.arg(number);
    const bool moved = m_writer.rename(m_path, aside);
    qCWarning(lcSettings) << m_path
                          << (moved ? "was unreadable, is now" : "is unreadable, stays as")
                          << (moved ? aside : m_path);
    return moved;
}

bool JsonFile::write() const {
    const auto replacement = m_writer.replace(m_path);
    return replacement->makeFolder() && replacement->open() && replacement->restrictToOwner() &&
           replacement->write(QJsonDocument(m_values).toJson()) && replacement->commit();
}

} // namespace quorvane
