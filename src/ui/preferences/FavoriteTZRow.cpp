// SPDX-License-Identifier: MIT
#include "FavoriteTZRow.h"

namespace quorvane {

using namespace Qt::StringLiterals;

std::optional<QString> FavoriteTZRow::abbreviation() const {
    auto abbreviation = m_row.abbreviation();
    if (abbreviation.isEmpty() || abbreviation.startsWith("GMT"_L1))
        return std::nullopt;
    return abbreviation;
}

QString FavoriteTZRow::description() const {
    const auto name = abbreviation();
    return name ? u"%1, %2"_s.arg(offsetString(), *name) : offsetString();
}

} // namespace quorvane
