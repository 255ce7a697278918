// SPDX-License-Identifier: MIT
#include <platform_xdg/IniFile.h>

#include <QFile>
#include <QFileInfo>

namespace quorvane {

namespace {

constexpr qint64 longestFile = 1 << 20;

} // namespace

IniFile IniFile::parse(QByteArrayView text) {
    IniFile file;
    QString section;
    for (const auto& rawLine : QString::fromUtf8(text).split(u'\n')) {
        const auto line = rawLine.trimmed();
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            section = line.sliced(1, line.size() - 2);
            continue;
        }
        const auto equals = line.indexOf(u'=');
        const bool isComment = line.startsWith(u'#') || line.startsWith(u';');
        if (equals > 0 && !isComment)
            file.m_sections[section][line.first(equals).trimmed()] =
                line.sliced(equals + 1).trimmed();
    }
    return file;
}

IniFile IniFile::read(const QString& path) {
    // Opening something else than a file, such as a pipe, could wait for ever.
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || info.size() > longestFile || !file.open(QFile::ReadOnly))
        return {};
    return parse(file.read(longestFile));
}

std::optional<QString> IniFile::value(const QString& section, const QString& key) const {
    const auto keys = m_sections.find(section);
    if (keys == m_sections.end())
        return std::nullopt;
    const auto found = keys->second.find(key);
    return found == keys->second.end() ? std::nullopt : std::optional(found->second);
}

} // namespace quorvane
