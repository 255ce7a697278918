// SPDX-License-Identifier: MIT
#pragma once

#include <settings/FileWriter.h>

#include <QJsonObject>
#include <QString>

namespace quorvane {

/// One JSON object in a file, readable and writable by its owner only. It is read when this is
/// created, and replaced as a whole after every change; members that nobody here knows are kept. A
/// value that is the present one changes nothing, so that a start leaves the file alone.
///
/// What is in the file's place but cannot be read as an object (broken text, a folder) is moved
/// aside to "NAME.unreadable-N" with the first N that is free, and the values start empty. If it
/// cannot be moved either, nothing is ever written. What could not be written stays in memory and
/// goes with the next value that is set, equal or not.
class JsonFile {
public:
    /// `writer` must outlive this.
    JsonFile(QString path, FileWriter& writer);

    /// Undefined where the key is absent.
    [[nodiscard]] QJsonValue value(const QString& key) const { return m_values.value(key); }

    void setValue(const QString& key, const QJsonValue& value);

private:
    [[nodiscard]] bool moveAside() const;
    [[nodiscard]] bool write() const;

    QString m_path;
    FileWriter& m_writer;
    QJsonObject m_values;
    bool m_isWritable = true;
    bool m_lacksChanges = false; ///< of the file: the last write failed
};

} // namespace quorvane
