// SPDX-License-Identifier: MIT
#include <composition/DefaultFavorites.h>

namespace quorvane {

using namespace Qt::StringLiterals;

QStringList defaultFavoriteIdentifiers(const TimeZone& currentZone, const ZoneDatabase& database) {
    const QStringList candidates{
        database.listedName(currentZone.identifier()),
        u"America/Los_Angeles"_s,
        u"America/New_York"_s,
        u"Europe/London"_s,
        u"Europe/Berlin"_s,
        u"Asia/Tokyo"_s,
        u"Asia/Singapore"_s,
        u"Australia/Sydney"_s};
    QStringList favorites;
    for (const auto& candidate : candidates) {
        if (database.isKnown(candidate) && !favorites.contains(candidate))
            favorites.append(candidate);
    }
    return favorites;
}

} // namespace quorvane
