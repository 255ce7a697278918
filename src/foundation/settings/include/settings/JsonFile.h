// SPDX-License-Identifier: MIT
#pragma once

#include <settings/SettingsWriter.h>

#include <QJsonObject>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>

namespace quorvane {

/// One JSON object in a file, readable and writable by its owner only. It is read when this is
/// created, and replaced as a whole after every change; members that nobody here knows are kept,
/// and so are those that another process changed meanwhile. A value that is the present one changes
/// nothing, so that a start leaves the file alone.
///
/// What is in the file's place but is no object (broken text, a folder) is moved aside to
/// "NAME.unreadable-N" with the first N that is free, and the values start empty. If it cannot be
/// moved, or if the file is there and the system does not let us read it, nothing is ever written.
/// What could not be written stays in memory and goes with the next value that is set, equal or
/// not, at the latest at the end. Each of these is a failure that is reported.
class JsonFile {
public:
    /// `writer` must outlive this.
    JsonFile(QString path, SettingsWriter& writer);

    /// Hands over once more what could not be written.
    ~JsonFile();

    JsonFile(const JsonFile&) = delete;
    JsonFile& operator=(const JsonFile&) = delete;

    /// Undefined where the key is absent.
    [[nodiscard]] QJsonValue value(const QString& key) const { return m_values.value(key); }

    void setValue(const QString& key, const QJsonValue& value);

    /// Runs what sets several values that mean something only together: they reach the file at
    /// once.
    void setTogether(const std::function<void()>& changes);

private:
    [[nodiscard]] bool start();
    void write();
    void noteOutcome(bool isWritten, int number);

    QString m_path;
    SettingsWriter& m_writer;
    QJsonObject m_values;
    QSet<QString> m_changed; ///< the keys that the file is not known to have
    bool m_isWritable;
    bool m_lacksChanges = false; ///< of the file: the last write failed
    bool m_isSettingTogether = false;
    bool m_isDue = false; ///< once all is set
    int m_lastWrite = 0;
    std::shared_ptr<JsonFile*> m_self; ///< for outcomes, which may come later than the end
};

} // namespace quorvane
