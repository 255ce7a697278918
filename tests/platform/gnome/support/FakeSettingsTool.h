// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

#include <map>

namespace quorvane {

/// A program that reads and writes settings as `gsettings` does, from a folder of the test's own:
/// a file for each, named after schema and key.
class FakeSettingsTool {
public:
    FakeSettingsTool();

    [[nodiscard]] QString program() const { return m_folder.filePath(QStringLiteral("gsettings")); }

    /// `value` in GVariant's text format.
    void set(const QString& schema, const QString& key, const QString& value);

    /// Everything that is set, by "schema key".
    [[nodiscard]] std::map<QString, QString> settings() const;

    /// From now on no key of the schema can be written.
    void refuseToWrite();

    /// From now on it knows no schema.
    void forgetSchemas();

private:
    [[nodiscard]] QString fileOf(const QString& schema, const QString& key) const;

    QTemporaryDir m_folder;
};

} // namespace quorvane
