// SPDX-License-Identifier: MIT
#include <platform_xdg/MimeHandlers.h>

#include <QDir>
#include <QFile>

#include <algorithm>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QString valueOr(const Environment& environment, const char* name, const QString& fallback) {
    const auto value = environment(name);
    return value && !value->isEmpty() ? *value : fallback;
}

/// Whether the file associates a program with the type; removed associations do not count.
bool associates(const QString& file, const QByteArray& mimeType) {
    QFile associations(file);
    if (!associations.open(QIODevice::ReadOnly))
        return false;
    bool removed = false;
    for (const auto& line : associations.readAll().split('\n')) {
        if (line.startsWith('['))
            removed = line.trimmed() == "[Removed Associations]";
        const auto equals = line.indexOf('=');
        const bool names = equals > 0 && line.first(equals).trimmed() == mimeType;
        if (names && !removed && !line.sliced(equals + 1).trimmed().isEmpty())
            return true;
    }
    return false;
}

} // namespace

MimeHandlers::MimeHandlers(const Environment& environment) {
    const auto home = valueOr(environment, "HOME", QDir::homePath());
    const auto config = valueOr(environment, "XDG_CONFIG_HOME", home + u"/.config"_s) + u':' +
                        valueOr(environment, "XDG_CONFIG_DIRS", u"/etc/xdg"_s);
    const auto data = valueOr(environment, "XDG_DATA_HOME", home + u"/.local/share"_s) + u':' +
                      valueOr(environment, "XDG_DATA_DIRS", u"/usr/local/share:/usr/share"_s);
    for (const auto& folder : config.split(u':', Qt::SkipEmptyParts))
        m_files.append(folder + u"/mimeapps.list"_s);
    for (const auto& folder : data.split(u':', Qt::SkipEmptyParts))
        m_files +=
            {folder + u"/applications/mimeapps.list"_s, folder + u"/applications/mimeinfo.cache"_s};
}

bool MimeHandlers::handles(const QString& mimeType) const {
    return std::ranges::any_of(
        m_files, [&](const auto& file) { return associates(file, mimeType.toUtf8()); });
}

} // namespace quorvane
