// SPDX-License-Identifier: MIT
#include <QFile>

#include <algorithm>
#include <time/ZoneDatabase.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Calls `take` with each line of `text`, without its line feed.
template <typename Take>
void forEachLine(QByteArrayView text, Take take) {
    while (!text.isEmpty()) {
        const auto end = text.indexOf('\n');
        take(end < 0 ? text : text.first(end));
        text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
    }
}

/// The field at `index` of a line whose fields are parted by `separator`.
QByteArrayView field(QByteArrayView line, char separator, int index) {
    for (; index > 0; --index) {
        const auto end = line.indexOf(separator);
        if (end < 0)
            return {};
        line = line.sliced(end + 1);
    }
    const auto end = line.indexOf(separator);
    return end < 0 ? line : line.first(end);
}

/// The name that a line of zic's input defines: "Z name ..." a zone, "L target name" a link. All
/// other lines (rules, continuations, comments) define none.
QByteArrayView definedName(QByteArrayView line) {
    if (line.startsWith("Z "))
        return field(line, ' ', 1);
    if (line.startsWith("L "))
        return field(line, ' ', 2);
    return {};
}

} // namespace

ZoneDatabase::ZoneDatabase(QString directory)
    : m_directory(std::move(directory)),
      m_index(readFile(m_directory + u"/tzdata.zi"_s)) {
    forEachLine(m_index, [this](QByteArrayView line) {
        if (const auto name = definedName(line); !name.isEmpty())
            m_identifiers.push_back(name);
    });
    std::ranges::sort(m_identifiers);
}

bool ZoneDatabase::isKnown(const QString& identifier) const {
    return identifier == "UTC"_L1 ||
           std::ranges::binary_search(m_identifiers, QByteArrayView(identifier.toUtf8()));
}

std::optional<TimeZone> ZoneDatabase::zone(const QString& identifier) const {
    if (!isKnown(identifier))
        return std::nullopt;
    auto opened = m_opened.find(identifier);
    if (opened == m_opened.end()) {
        QTimeZone zone(identifier.toUtf8());
        if (!zone.isValid())
            return std::nullopt;
        opened = m_opened.emplace(identifier, std::move(zone)).first;
    }
    return TimeZone(identifier, opened->second);
}

TimeZone ZoneDatabase::utc() {
    return {u"UTC"_s, QTimeZone::utc()};
}

QStringList ZoneDatabase::zonesByCountry() const {
    QStringList identifiers;
    const auto table = readFile(m_directory + u"/zone.tab"_s);
    forEachLine(table, [&identifiers](QByteArrayView line) {
        if (line.startsWith('#'))
            return;
        if (const auto name = field(line, '\t', 2); !name.isEmpty())
            identifiers.append(QString::fromUtf8(name));
    });
    return identifiers;
}

} // namespace quorvane
