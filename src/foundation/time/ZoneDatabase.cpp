// SPDX-License-Identifier: MIT
#include <time/ZoneDatabase.h>

#include <QFile>

#include <algorithm>

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

/// The field at `index` of a line whose fields are separated by `separator`.
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

// Links lead to zones, seldom to other links; an index in which they lead in a circle is broken.
constexpr int maximumLinks = 8;

} // namespace

ZoneDatabase::ZoneDatabase(QString directory)
    : m_directory(std::move(directory)),
      m_index(readFile(m_directory + u"/tzdata.zi"_s)) {
    // In zic's input, "Z name ..." defines a zone, "L target name" a link. All other lines (rules,
    // continuations, comments) define no name.
    forEachLine(m_index, [this](QByteArrayView line) {
        if (line.startsWith("Z "))
            m_entries.push_back({field(line, ' ', 1), {}});
        else if (line.startsWith("L "))
            m_entries.push_back({field(line, ' ', 2), field(line, ' ', 1)});
    });
    std::erase_if(m_entries, [](const IndexEntry& entry) { return entry.name.isEmpty(); });
    std::ranges::sort(m_entries, {}, &IndexEntry::name);
}

bool ZoneDatabase::isKnown(const QString& identifier) const {
    return identifier == "UTC"_L1 || entry(identifier.toUtf8()) != nullptr;
}

std::optional<TimeZone> ZoneDatabase::zone(const QString& identifier) const {
    if (!isKnown(identifier))
        return std::nullopt;
    auto opened = m_opened.find(identifier);
    if (opened == m_opened.end()) {
        auto zone = dataOf(identifier);
        if (!zone.isValid())
            return std::nullopt;
        opened = m_opened.emplace(identifier, std::move(zone)).first;
    }
    return TimeZone(identifier, opened->second);
}

QString ZoneDatabase::dataFileOf(const QString& identifier) const {
    return isKnown(identifier) ? QString::fromUtf8(dataOf(identifier).id()) : QString();
}

const ZoneDatabase::IndexEntry* ZoneDatabase::entry(QByteArrayView name) const {
    const auto found = std::ranges::lower_bound(m_entries, name, {}, &IndexEntry::name);
    return found != m_entries.end() && found->name == name ? &*found : nullptr;
}

QTimeZone ZoneDatabase::dataOf(const QString& identifier) const {
    auto name = identifier.toUtf8();
    QTimeZone zone(name);
    // Debian, for one, keeps the files of old names in a package of their own, but the names in the
    // index: a name that a user has stored goes on to mean its zone. From some release after 6.4
    // on, Qt itself takes another zone for one without a file, by a table that differs from the
    // index.
    for (int links = 0; zone.id() != name && links < maximumLinks; ++links) {
        const auto* link = entry(name);
        if (link == nullptr || link->target.isEmpty())
            break;
        name = link->target.toByteArray();
        zone = QTimeZone(name);
    }
    return zone;
}

std::vector<TimeZone> ZoneDatabase::zones(const QStringList& identifiers) const {
    std::vector<TimeZone> named;
    for (const auto& identifier : identifiers) {
        if (auto each = zone(identifier))
            named.push_back(*std::move(each));
    }
    return named;
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
