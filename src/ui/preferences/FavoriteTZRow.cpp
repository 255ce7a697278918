// SPDX-License-Identifier: MIT
#include "FavoriteTZRow.h"

namespace quorvane {

using namespace Qt::StringLiterals;

std::optional<QString> FavoriteTZRow::abbreviation() const {
    const auto name = m_row.abbreviation();
    return name.isEmpty() || name.startsWith("GMT"_L1) ? std::nullopt : std::optional(name);
}

QString FavoriteTZRow::description() const {
    const auto name = abbreviation();
    //: The offset and the name of a time zone: "UTC-5, EST"
    return name ? tr("%1, %2").arg(offsetString(), *name) : offsetString();
}

} // namespace quorvane
