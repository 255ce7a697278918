// SPDX-License-Identifier: MIT
#include "FavoriteListModel.h"

#include "FavoriteTZRow.h"

namespace quorvane {

QVariant FavoriteListModel::zoneData(const TimeZone& zone, int role) const {
    switch (role) {
    case AbbreviationRole:
        return FavoriteTZRow(rowOf(zone)).abbreviation().value_or(QString());
    case Qt::AccessibleDescriptionRole:
        return FavoriteTZRow(rowOf(zone)).description();
    default:
        return ZoneListModel::zoneData(zone, role);
    }
}

} // namespace quorvane
