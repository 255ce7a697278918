// SPDX-License-Identifier: MIT
#include "TimeZoneAliases.h"

namespace quorvane {

std::set<QString> TimeZoneAliases::identifiersMatching(const QString& query) {
    std::set<QString> identifiers;
    for (const auto& alias : map) {
        if (alias.name.contains(query))
            identifiers.insert(alias.identifier);
    }
    return identifiers;
}

} // namespace quorvane
