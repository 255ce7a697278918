// SPDX-License-Identifier: MIT
#include "TimeZoneAliases.h"

#include <QStringList>

#include <algorithm>

namespace quorvane {

namespace {

constexpr std::array initials{
    QLatin1StringView("dc"),
    QLatin1StringView("la"),
    QLatin1StringView("nyc"),
    QLatin1StringView("sf"),
    QLatin1StringView("uk")};

QString asWritten(QLatin1StringView alias) {
    QStringList words;
    for (auto word : QString(alias).split(u' ')) {
        const bool isShort = std::ranges::find(initials, word) != initials.end();
        words.append(isShort ? word.toUpper() : word.front().toUpper() + word.sliced(1));
    }
    return words.join(u' ');
}

} // namespace

std::set<QString> TimeZoneAliases::identifiersMatching(const QString& query) {
    std::set<QString> identifiers;
    for (const auto& alias : map) {
        if (alias.name.contains(query))
            identifiers.insert(alias.identifier);
    }
    return identifiers;
}

std::optional<QString>
TimeZoneAliases::nameMatching(const QString& query, const QString& identifier) {
    const Alias* best = nullptr;
    const auto rank = [&query](const Alias& alias) {
        return alias.name == query ? 2 : alias.name.startsWith(query) ? 1 : 0;
    };
    for (const auto& alias : map) {
        if (alias.identifier == identifier && alias.name.contains(query) &&
            (best == nullptr || rank(alias) > rank(*best)))
            best = &alias;
    }
    return best == nullptr ? std::nullopt : std::optional(asWritten(best->name));
}

} // namespace quorvane
