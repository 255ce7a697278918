// SPDX-License-Identifier: MIT
#include "FuzzFolder.h"
#include "Samples.h"

#include <composition/DefaultFavorites.h>
#include <timezones/TimeZoneCatalogue.h>

#include <algorithm>
#include <set>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

void checkLists(const ZoneDatabase& database) {
    const auto listed = database.listedZones();
    demand(
        std::set(listed.begin(), listed.end()).size() == std::size_t(listed.size()),
        "a list has each zone once");
    for (const auto& identifier : listed) {
        demand(database.listedName(identifier) == identifier, "a listed name stands for itself");
        (void) database.dataFileOf(identifier);
    }
    const auto names = database.listedNames(listed);
    demand(names == listed, "listed names stay as they are");
}

void checkCatalogue(const ZoneDatabase& database) {
    const TimeZoneCatalogue catalogue(database, {1'752'000'000});
    for (const auto& entry : catalogue.entries())
        demand(database.isKnown(entry.zone.identifier()), "a zone on offer is known");
    const auto favorites = defaultFavoriteIdentifiers(ZoneDatabase::utc(), database);
    demand(favorites.contains(u"UTC"_s), "the current zone is a favourite");
}

} // namespace

/// Any text as zone.tab and, behind a zero byte, as tzdata.zi; behind another one a name that is
/// looked for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzFolder folder;
    const auto texts = FuzzInput(data, size).rest().split('\0');
    folder.write(u"zone.tab"_s, texts.value(0));
    folder.write(u"tzdata.zi"_s, texts.value(1));
    ZoneDatabase database(folder.path());
    const auto name = QString::fromUtf8(texts.value(2));
    (void) database.zone(name);
    (void) database.listedName(name);
    checkLists(database);
    checkCatalogue(database);
    return 0;
}
