// SPDX-License-Identifier: MIT
#include "ZoneIndex.h"

#include <time/OtherZoneNames.h>

namespace quorvane {

OtherZoneNames OtherZoneNames::in(const ZoneDatabase& database) {
    const ZoneIndex index(database.directory());
    OtherZoneNames names;
    for (const auto& listed : index.listed())
        names.countries[QString::fromUtf8(listed.name)] =
            QString::fromUtf8(listed.countries).split(u',', Qt::SkipEmptyParts);
    for (const auto& entry : index.entries()) {
        const auto name = QString::fromUtf8(entry.name);
        if (const auto listed = database.listedName(name); listed != name)
            names.oldNames[listed].append(name);
    }
    return names;
}

} // namespace quorvane
