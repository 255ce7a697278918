// SPDX-License-Identifier: MIT
#include "ZoneWordIndex.h"

#include "ClockMinute.h"
#include "FoldedText.h"

#include <time/IcuTimeZone.h>

#include <utility>

namespace quorvane {

namespace {

// Between names that are searched as one text; no query holds it.
constexpr QChar separator(0x1f);

} // namespace

ZoneWordIndex::ZoneWordIndex(TimeZoneCatalogue catalogue, UserLocale locale)
    : m_catalogue(std::move(catalogue)),
      m_locale(std::move(locale)),
      m_countries(m_locale) {
}

bool ZoneWordIndex::makeNext() {
    const auto& entries = m_catalogue.entries();
    if (m_words.size() == entries.size())
        return false;
    if (!m_names)
        m_names.emplace(m_catalogue.instant(), m_locale);
    m_words.push_back(wordsOf(entries[m_words.size()]));
    if (m_words.size() == entries.size())
        m_names.reset();
    return true;
}

const ZoneWords& ZoneWordIndex::words(std::size_t entry) {
    while (m_words.size() <= entry && makeNext())
        continue;
    return m_words[entry];
}

const QString& ZoneWordIndex::abbreviation(std::size_t entry, Instant now) {
    const auto start = startOfClockMinute(now);
    if (!m_minute || m_minute->start != start)
        m_minute.emplace(start, m_locale, m_catalogue.entries().size());
    auto& known = m_minute->known[entry];
    if (!known)
        known = m_minute->names.abbreviation(*words(entry).zone).value_or(QString()).toLower();
    return *known;
}

ZoneWords ZoneWordIndex::wordsOf(const TimeZoneCatalogue::Entry& entry) {
    ZoneWords words;
    words.zone = icuTimeZone(entry.zone);
    words.genericName = m_names->genericName(*words.zone).value_or(QString());
    words.lowerGenericName = words.genericName.toLower();
    words.countries = m_countries.of(entry.countries);
    words.furtherNames = furtherNames(entry, words);
    return words;
}

QString
ZoneWordIndex::furtherNames(const TimeZoneCatalogue::Entry& entry, const ZoneWords& words) const {
    auto names = words.countries;
    names << words.lowerGenericName << entry.searchText;
    for (const auto& oldName : entry.oldNames)
        names << QString(oldName).replace(u'_', u' ');
    return foldedText(names.join(separator));
}

} // namespace quorvane
