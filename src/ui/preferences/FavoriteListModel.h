// SPDX-License-Identifier: MIT
#pragma once

#include <picker/ZoneListModel.h>

namespace quorvane {

/// Zones as the list of favourites shows them: what is checked is a favourite.
class FavoriteListModel final : public ZoneListModel {
    Q_OBJECT

public:
    using ZoneListModel::ZoneListModel;

protected:
    /// The abbreviation is empty where the row shows none.
    [[nodiscard]] QVariant zoneData(const TimeZone& zone, int role) const override;
};

} // namespace quorvane
