// SPDX-License-Identifier: MIT
#include "NewerLaws.h"
#include "TimeZoneAliases.h"
#include "VectorKinds.h"

#include <time/ZoneNames.h>
#include <timezones/ZoneSearch.h>
#include <timezones/ZoneSelection.h>
#include <timezones/ZoneTexts.h>

#include <algorithm>
#include <iterator>
#include <set>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QString identifierOf(const TimeZone& zone) {
    return zone.identifier();
}

QString identifierOf(const TimeZoneCatalogue::Entry& entry) {
    return entry.zone.identifier();
}

template <typename Zones>
QJsonArray identifiers(const Zones& zones) {
    QJsonArray result;
    for (const auto& each : zones)
        result.append(identifierOf(each));
    return result;
}

QJsonArray inOrder(const std::set<QString>& texts) {
    return QJsonArray::fromStringList({texts.begin(), texts.end()});
}

std::set<QString> setOf(const QStringList& texts) {
    return {texts.begin(), texts.end()};
}

/// null for none.
QJsonValue optionalText(const std::optional<QString>& text) {
    return text ? QJsonValue(*text) : QJsonValue::Null;
}

/// The zones that a query finds by an alias or by their identifier, whatever the locale.
QStringList foundByAliasOrIdentifier(const VectorRow& row) {
    // Sets of rows made before the field had its name call it so.
    constexpr auto formerName = "by_rules_1_2";
    return row.texts(
        row.fields().contains(QLatin1StringView(formerName)) ? formerName
                                                             : "by_alias_or_identifier");
}

/// Where a law is newer, the oracle's abbreviation does not tell what a query finds; the confirmed
/// one does, besides the identifier and the generic name.
void settleNewerLaws(
    const VectorRow& row,
    const VectorRow& season,
    std::set<QString>& required,
    std::set<QString>& maybe) {
    const auto query = normalisedQuery(row.text("query"));
    const auto byIdentifier = foundByAliasOrIdentifier(row);
    for (const auto& zone : row.zones().zones(row.zones().zonesByCountry())) {
        if (!hasNewerLaw(zone.identifier()) || byIdentifier.contains(zone.identifier()))
            continue;
        const auto name = confirmedAbbreviation(zone, season.instant("now"), season.locale());
        if (name.toLower().contains(query))
            required.insert(zone.identifier());
        else if (required.erase(zone.identifier()) > 0)
            maybe.insert(zone.identifier());
    }
}

/// Which zones a search lacks, and which it should not have found, in one of the row's seasons.
QJsonObject searchFaults(const VectorRow& row, const char* seasonName) {
    const VectorRow season(row.value(seasonName).toObject(), row.zones());
    const auto now = season.instant("now");
    const ZoneSearch search({row.zones(), now}, season.locale());
    std::set<QString> found;
    for (const auto& zone : search.filtered(row.text("query"), now))
        found.insert(zone.identifier());

    auto required = setOf(foundByAliasOrIdentifier(row) + season.texts("also"));
    auto maybe = setOf(season.texts("maybe"));
    settleNewerLaws(row, season, required, maybe);
    std::set<QString> missing;
    std::set<QString> surplus;
    std::ranges::set_difference(required, found, std::inserter(missing, missing.end()));
    for (const auto& identifier : found) {
        if (!required.contains(identifier) && !maybe.contains(identifier))
            surplus.insert(identifier);
    }
    return {{"missing"_L1, inOrder(missing)}, {"surplus"_L1, inOrder(surplus)}};
}

} // namespace

Comparison checkUniverse(const VectorRow& row) {
    const TimeZoneCatalogue catalogue(row.zones(), Instant());
    std::set<QString> actual;
    for (const auto& entry : catalogue.entries())
        actual.insert(entry.zone.identifier());
    return {inOrder(setOf(row.texts("lines"))), inOrder(actual)};
}

Comparison checkAlias(const VectorRow& row) {
    return {
        inOrder(setOf(row.texts("ids"))),
        inOrder(TimeZoneAliases::identifiersMatching(row.text("query")))};
}

Comparison checkSearch(const VectorRow& row) {
    const QJsonObject none{{"missing"_L1, QJsonArray()}, {"surplus"_L1, QJsonArray()}};
    return {
        QJsonArray{none, none},
        QJsonArray{searchFaults(row, "data_winter"), searchFaults(row, "data_summer")}};
}

Comparison checkStarred(const VectorRow& row) {
    const auto now = row.instant("now");
    const auto query = row.text("query");
    const ZoneSearch search({row.zones(), now}, UserLocale::named(u"en_US"_s));
    return {
        row.array("expected"),
        identifiers(
            row.flag("starredOnly") ? search.filteredStarred(query, now, row.texts("favorites"))
                                    : search.filtered(query, now))};
}

Comparison checkCatalogueSort(const VectorRow& row) {
    const auto now = row.instant("now");
    // Rows without zones of their own are about the whole catalogue, which universe.txt lists.
    return {
        row.array("expected"),
        row.fields().contains("universe"_L1)
            ? identifiers(TimeZoneCatalogue(row.zones(), now).entries())
            : identifiers(sortedByOffset(row.zoneList("input"), now))};
}

Comparison checkOffsetText(const VectorRow& row) {
    const auto seconds = static_cast<int>(row.number("seconds"));
    const auto text = row.fields().contains("zone"_L1)
                          ? offsetString(row.zone("zone"), row.instant("t"))
                          : offsetText(seconds);
    return {
        QJsonArray{row.text("expected"), row.text("expected")},
        QJsonArray{offsetText(seconds), text}};
}

Comparison checkLabel(const VectorRow& row) {
    const auto identifier = row.text("identifier");
    const auto abbreviation =
        row.value("abbreviation").isNull() ? std::nullopt : std::optional(row.text("abbreviation"));
    return {
        QJsonArray{row.text("label"), row.value("region")},
        QJsonArray{zoneLabel(identifier, abbreviation), optionalText(regionName(identifier))}};
}

Comparison checkLabelByZone(const VectorRow& row) {
    const auto zone = row.zone("identifier");
    const auto now = row.instant("now");
    if (zone.identifier() == "Etc/GMT+12"_L1)
        return {placeByOracle(zone, now), zoneLabel(zone, now, row.locale())};
    if (hasNewerLaw(zone.identifier())) {
        const auto confirmed = confirmedAbbreviation(zone, now, row.locale());
        return {zoneLabel(zone.identifier(), confirmed), zoneLabel(zone, now, row.locale())};
    }
    // Where ICU's locale data are older than the oracle's, the row has the label that they give.
    const auto older = row.fields().value("icu72_label"_L1);
    const auto label = zoneLabel(zone, now, row.locale());
    if (!older.isUndefined() && label == older)
        return {older, label};
    return {
        QJsonArray{row.text("label"), row.text("abbreviation")},
        QJsonArray{label, optionalText(zoneAbbreviation(zone, now, row.locale()))}};
}

Comparison checkToggle(const VectorRow& row) {
    return {
        row.array("after"),
        identifiers(toggledSelection(row.zoneList("selection"), row.zone("zone")))};
}

} // namespace quorvane
