// SPDX-License-Identifier: MIT
#include <loop/Failure.h>
#include <time/SystemCurrentZone.h>

#include <QFile>

#include <algorithm>
#include <string>

namespace quorvane {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

// The kernel's own limit on the links of one path (path_resolution(7)).
constexpr int maximumLinks = 40;

QString systemIdentifier(QString identifier) {
    // The database's copies without and with leap seconds hold the same zones.
    for (const auto folder : {"posix/"_L1, "right/"_L1}) {
        if (identifier.startsWith(folder))
            identifier.remove(0, folder.size());
    }
    return identifier;
}

std::optional<QString> zoneVariable(const Environment& environment) {
    auto variable = environment("TZ");
    // POSIX leaves what follows a colon to the implementation; here it means the same as without.
    if (variable && variable->startsWith(u':'))
        variable->remove(0, 1);
    return variable;
}

/// What follows the folder in a path; empty for a path elsewhere.
QString tailIn(const std::string& folder, const fs::path& path) {
    const auto text = path.string();
    const auto start = text.rfind(folder);
    return start == std::string::npos ? QString()
                                      : QString::fromStdString(text.substr(start + folder.size()));
}

std::optional<QByteArray> readFile(const fs::path& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

} // namespace

SystemCurrentZone::SystemCurrentZone(
    const ZoneDatabase& zones, Environment environment, std::filesystem::path root)
    : m_zones(zones),
      m_environment(std::move(environment)),
      m_root(std::move(root)) {
}

TimeZone SystemCurrentZone::current() const {
    const auto set = systemIdentifier(identifier());
    auto zone = m_zones.zone(m_zones.listedName(set));
    if (!zone && !set.isEmpty() && set != m_reported)
        reportFailure(u"\"%1\" is no time zone of this system; times are in UTC"_s.arg(set));
    m_reported = zone ? QString() : set;
    return zone.value_or(ZoneDatabase::utc());
}

QString SystemCurrentZone::settingFile(const Environment& environment) {
    const auto variable = zoneVariable(environment);
    if (!variable)
        return u"/etc/localtime"_s;
    return variable->startsWith(u'/') ? *variable : QString();
}

QString SystemCurrentZone::identifier() const {
    const fs::path file(settingFile(m_environment).toStdString());
    return file.empty() ? zoneVariable(m_environment).value_or(QString())
                        : identifierOfFile(m_root / file.relative_path());
}

QString SystemCurrentZone::identifierOfFile(Path file) const {
    // Link by link, not to the end: the database's own links would replace the name that was
    // chosen.
    for (int links = 0; links < maximumLinks; ++links) {
        if (auto tail = tailInDatabase(file); !tail.isEmpty())
            return tail;
        std::error_code error;
        const auto target = fs::read_symlink(file, error);
        if (error)
            return identifierOfCopy(file);
        file = target.is_absolute() ? m_root / target.relative_path()
                                    : (file.parent_path() / target).lexically_normal();
    }
    return {};
}

QString SystemCurrentZone::tailInDatabase(const Path& file) const {
    const auto tail = tailIn(m_zones.directory().toStdString() + '/', file);
    return tail.isEmpty() ? tailIn("/zoneinfo/", file) : tail;
}

QString SystemCurrentZone::identifierOfCopy(const Path& file) const {
    auto stated =
        QString::fromUtf8(readFile(m_root / "etc/timezone").value_or(QByteArray())).trimmed();
    if (m_zones.isKnown(stated) && isCopyOf(file, m_zones.dataFileOf(stated)))
        return stated;
    const auto candidates = m_zones.zonesByCountry();
    const auto same = std::ranges::find_if(
        candidates, [&](const QString& candidate) { return isCopyOf(file, candidate); });
    return same == candidates.end() ? QString() : *same;
}

bool SystemCurrentZone::isCopyOf(const Path& file, const QString& identifier) const {
    const auto original = fs::path(m_zones.directory().toStdString()) / identifier.toStdString();
    std::error_code error;
    // Sizes differ mostly, and are cheaper to ask than contents.
    const auto size = fs::file_size(original, error);
    if (error || size != fs::file_size(file, error) || error)
        return false;
    const auto bytes = readFile(file);
    return bytes && bytes == readFile(original);
}

} // namespace quorvane
