// SPDX-License-Identifier: MIT
#include "ZoneIndex.h"
#include "ZoneRules.h"

#include <time/ZoneDatabase.h>

#include <QFile>

#include <algorithm>
#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

// Links lead to zones, seldom to other links; an index in which they lead in a circle is broken.
constexpr int maximumLinks = 8;

QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isIndex(const fs::path& path) {
    constexpr std::array names{"tzdata.zi", "zone.tab", "zone1970.tab"};
    return std::ranges::find(names, path.filename().string()) != names.end();
}

} // namespace

QString zoneDirectory(const Environment& environment) {
    // The C library's own variable, then the folders that systems keep the data in.
    const QStringList candidates{
        environment("TZDIR").value_or(QString()),
        u"/usr/share/zoneinfo"_s,
        u"/usr/lib/zoneinfo"_s,
        u"/usr/share/lib/zoneinfo"_s,
        u"/etc/zoneinfo"_s};
    const auto found = std::ranges::find_if(candidates, [](const QString& candidate) {
        return candidate.startsWith(u'/') && QFile::exists(candidate);
    });
    return found == candidates.end() ? candidates[1] : *found;
}

ZoneDatabase::ZoneDatabase(QString directory)
    : m_directory(std::move(directory)),
      m_stamp(stamp()),
      m_index(std::make_unique<ZoneIndex>(m_directory)) {
}

ZoneDatabase::~ZoneDatabase() = default;

bool ZoneDatabase::refresh() {
    auto present = stamp();
    if (present == m_stamp)
        return false;
    m_stamp = std::move(present);
    m_index = std::make_unique<ZoneIndex>(m_directory);
    for (auto& [identifier, rules] : m_opened) {
        // In place, for those who hold a zone; one that is gone goes on as it was.
        if (auto renewed = rulesOf(identifier))
            *rules = *std::move(renewed);
    }
    return true;
}

bool ZoneDatabase::hasData() const {
    return !m_index->isEmpty();
}

bool ZoneDatabase::isKnown(const QString& identifier) const {
    return identifier == "UTC"_L1 || m_index->entry(identifier.toUtf8()) != nullptr;
}

std::optional<TimeZone> ZoneDatabase::zone(const QString& identifier) const {
    if (!isKnown(identifier))
        return std::nullopt;
    auto opened = m_opened.find(identifier);
    if (opened == m_opened.end()) {
        auto rules = rulesOf(identifier);
        if (!rules)
            return std::nullopt;
        auto kept = std::make_shared<ZoneRules>(*std::move(rules));
        opened = m_opened.emplace(identifier, std::move(kept)).first;
    }
    return TimeZone(identifier, opened->second);
}

QString ZoneDatabase::dataFileOf(const QString& identifier) const {
    auto name = identifier.toUtf8();
    for (int links = 0; links <= maximumLinks; ++links) {
        const auto* entry = m_index->entry(name);
        if (entry == nullptr)
            break;
        if (QFile::exists(m_directory + u'/' + QString::fromUtf8(name)))
            return QString::fromUtf8(name);
        // Debian, for one, keeps the files of old names in a package of their own, but the names in
        // the index: a name that a user has stored goes on to mean its zone.
        name = entry->target.toByteArray();
    }
    return {};
}

std::optional<ZoneRules> ZoneDatabase::rulesOf(const QString& identifier) const {
    const auto file = dataFileOf(identifier);
    auto rules =
        file.isEmpty() ? std::nullopt : ZoneRules::parse(readFile(m_directory + u'/' + file));
    return rules || identifier != "UTC"_L1 ? rules : ZoneRules();
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
    return {u"UTC"_s, std::make_shared<const ZoneRules>()};
}

QStringList ZoneDatabase::zonesByCountry() const {
    QStringList identifiers;
    for (const auto& listed : m_index->listed())
        identifiers.append(QString::fromUtf8(listed.name));
    return identifiers;
}

QStringList ZoneDatabase::listedZones() const {
    auto identifiers = zonesByCountry();
    identifiers << u"UTC"_s << u"Etc/GMT+12"_s;
    identifiers.removeDuplicates();
    return identifiers;
}

bool ZoneDatabase::isListed(QByteArrayView name) const {
    return name == "UTC" || name == "Etc/GMT+12" || m_index->isListed(name);
}

QString ZoneDatabase::listedName(const QString& identifier) const {
    const auto start = identifier.toUtf8();
    QByteArrayView name(start);
    for (int links = 0; links <= maximumLinks && !name.isEmpty(); ++links) {
        if (isListed(name))
            return QString::fromUtf8(name);
        // In the index UTC is a link to this one.
        if (name == "Etc/UTC")
            return u"UTC"_s;
        const auto* entry = m_index->entry(name);
        name = entry == nullptr ? QByteArrayView() : entry->target;
    }
    return identifier;
}

QStringList ZoneDatabase::listedNames(const QStringList& identifiers) const {
    QStringList names;
    for (const auto& identifier : identifiers) {
        const auto name = listedName(identifier);
        const bool isDoubled =
            name != identifier && (identifiers.contains(name) || names.contains(name));
        if (!isDoubled)
            names.append(name);
    }
    return names;
}

ZoneDatabase::Stamp ZoneDatabase::stamp() const {
    // The folders, too: without an index the files are all there is, and an update renames new ones
    // over the old ones.
    const fs::path folder(m_directory.toStdString());
    std::error_code error;
    Stamp stamp{{fs::canonical(folder, error), fs::last_write_time(folder, error)}};
    for (fs::directory_iterator each(folder, error), end; each != end; each.increment(error)) {
        if (each->is_directory(error) || isIndex(each->path()))
            stamp.emplace_back(each->path(), each->last_write_time(error));
    }
    std::ranges::sort(stamp);
    return stamp;
}

} // namespace quorvane
