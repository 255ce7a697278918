// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <map>
#include <optional>

namespace quorvane {

/// A desktop's settings in the form of sections with keys, as GTK and KDE write them. What is no
/// key of a section is read over.
class IniFile {
public:
    [[nodiscard]] static IniFile parse(QByteArrayView text);

    /// Empty where the file is not there, is no file, cannot be read or is longer than a mebibyte.
    [[nodiscard]] static IniFile read(const QString& path);

    [[nodiscard]] std::optional<QString> value(const QString& section, const QString& key) const;

private:
    std::map<QString, std::map<QString, QString>> m_sections;
};

} // namespace quorvane
