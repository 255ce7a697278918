// SPDX-License-Identifier: MIT
#include "FavoriteTZRow.h"

namespace quorvane {

using namespace Qt::StringLiterals;

std::optional<QString> FavoriteTZRow::abbreviation() const {
    const auto name = m_row.shortName();
    return name && name->startsWith("GMT"_L1) ? std::nullopt : name;
}

QString FavoriteTZRow::description() const {
    const auto name = abbreviation();
    return name ? u"%1, %2"_s.arg(offsetString(), *name) : offsetString();
}

} // namespace quorvane
