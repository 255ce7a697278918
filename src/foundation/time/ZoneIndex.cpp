// SPDX-License-Identifier: MIT
#include "ZoneIndex.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <filesystem>

namespace quorvane {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

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

bool isZoneFile(const fs::path& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(4) == "TZif";
}

/// What the index would have on the file: a zone, or for a link within the folder a link.
QByteArray indexLine(const fs::path& path, const fs::path& folder) {
    std::error_code error;
    const auto name = path.lexically_relative(folder).string();
    if (!fs::is_symlink(path, error))
        return QByteArray::fromStdString("Z " + name + '\n');
    const auto target =
        fs::proximate(fs::canonical(path, error), fs::canonical(folder, error), error);
    return QByteArray::fromStdString("L " + target.string() + ' ' + name + '\n');
}

/// An index made of the files, as far as it matters here.
QByteArray indexOfFiles(const QString& directory) {
    // The copies without and with leap seconds, and what is no zone of its own.
    constexpr std::array leftOut{"posix", "right", "localtime", "posixrules"};
    const fs::path folder(directory.toStdString());
    QByteArray text;
    std::error_code error;
    for (fs::recursive_directory_iterator each(folder, error), end; each != end;
         each.increment(error)) {
        const auto name = each->path().filename().string();
        if (each.depth() == 0 && std::ranges::find(leftOut, name) != leftOut.end())
            each.disable_recursion_pending();
        else if (each->is_regular_file(error) && isZoneFile(each->path()))
            text += indexLine(each->path(), folder);
    }
    return text;
}

/// Of an index the lines that define names: a third of it, which is kept as long as the program
/// runs.
QByteArray namesOf(const QByteArray& index) {
    QByteArray names;
    forEachLine(index, [&names](QByteArrayView line) {
        const bool isZone = line.startsWith("Z ");
        if (isZone || line.startsWith("L "))
            names.append(isZone ? line.first(2 + field(line, ' ', 1).size()) : line).append('\n');
    });
    names.squeeze();
    return names;
}

/// Whether a list without a table by country offers the zone: the others are offsets and old names.
bool isPlace(const ZoneIndex::Entry& entry) {
    constexpr std::array regions{
        "Africa/",
        "America/",
        "Antarctica/",
        "Arctic/",
        "Asia/",
        "Atlantic/",
        "Australia/",
        "Europe/",
        "Indian/",
        "Pacific/"};
    return entry.target.isEmpty() && std::ranges::any_of(regions, [&](const char* region) {
               return entry.name.startsWith(region);
           });
}

} // namespace

ZoneIndex::ZoneIndex(const QString& directory) : m_table(readFile(directory + "/zone.tab"_L1)) {
    const auto index = readFile(directory + "/tzdata.zi"_L1);
    m_text = index.isEmpty() ? indexOfFiles(directory) : namesOf(index);
    if (m_table.isEmpty())
        m_table = readFile(directory + "/zone1970.tab"_L1);
    readEntries();
    readListed();
}

const ZoneIndex::Entry* ZoneIndex::entry(QByteArrayView name) const {
    const auto found = std::ranges::lower_bound(m_entries, name, {}, &Entry::name);
    return found != m_entries.end() && found->name == name ? &*found : nullptr;
}

bool ZoneIndex::isListed(QByteArrayView name) const {
    return std::ranges::binary_search(m_listedNames, name);
}

void ZoneIndex::readEntries() {
    // In zic's input, "Z name ..." defines a zone, "L target name" a link. All other lines (rules,
    // continuations, comments) define no name.
    forEachLine(m_text, [this](QByteArrayView line) {
        if (line.startsWith("Z "))
            m_entries.push_back({field(line, ' ', 1), {}});
        else if (line.startsWith("L "))
            m_entries.push_back({field(line, ' ', 2), field(line, ' ', 1)});
    });
    std::erase_if(m_entries, [](const Entry& entry) { return entry.name.isEmpty(); });
    std::ranges::sort(m_entries, {}, &Entry::name);
}

void ZoneIndex::readListed() {
    forEachLine(m_table, [this](QByteArrayView line) {
        if (line.startsWith('#'))
            return;
        if (const auto name = field(line, '\t', 2); !name.isEmpty())
            m_listed.push_back({field(line, '\t', 0), name});
    });
    if (m_listed.empty()) {
        for (const auto& entry : m_entries) {
            if (isPlace(entry))
                m_listed.push_back({{}, entry.name});
        }
    }
    for (const auto& listed : m_listed)
        m_listedNames.push_back(listed.name);
    std::ranges::sort(m_listedNames);
}

} // namespace quorvane
