// SPDX-License-Identifier: MIT
#include "FuzzInput.h"
#include "Samples.h"

#include <timezones/ZoneSearch.h>

#include <algorithm>
#include <set>

using namespace quorvane;

namespace {

constexpr Instant summer{1'752'000'000};
constexpr Instant winter{1'768'000'000};

const ZoneSearch& search(bool isGerman) {
    static const ZoneSearch english(
        TimeZoneCatalogue(samples::zones(), summer), UserLocale::named(QStringLiteral("en_US")));
    static const ZoneSearch german(
        TimeZoneCatalogue(samples::zones(), summer), UserLocale::named(QStringLiteral("de_DE")));
    return isGerman ? german : english;
}

QStringList identifiersOf(const std::vector<TimeZone>& zones) {
    QStringList identifiers;
    for (const auto& zone : zones)
        identifiers.append(zone.identifier());
    return identifiers;
}

} // namespace

/// Any text in the search for a zone.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const auto& searched = search(input.flag());
    const auto now = input.flag() ? winter : summer;
    const auto query = input.restAsText();
    const auto first = identifiersOf(searched.filtered(query, now));
    const auto all = identifiersOf(searched.results(query, now));
    demand(all.size() >= first.size() && all.first(first.size()) == first, "first come first");
    demand(std::set(all.begin(), all.end()).size() == std::size_t(all.size()), "each zone once");
    const auto starred = identifiersOf(searched.starredResults(query, now, {all.value(0)}));
    demand(starred == all.first(std::min(all.size(), qsizetype{1})), "the starred one is found");
    if (!all.isEmpty())
        (void) searched.reason(query, now, searched.catalogue().entries().front().zone);
    return 0;
}
