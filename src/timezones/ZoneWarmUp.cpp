// SPDX-License-Identifier: MIT
#include <time/ZoneNames.h>
#include <timezones/ZoneWarmUp.h>

#include <QStringList>

namespace quorvane {

namespace {

SlicedWork::Step warmUpSteps(const ZoneDatabase& database, Instant now, const UserLocale& locale) {
    return [&database, now, locale, identifiers = database.zonesByCountry()]() mutable {
        if (identifiers.isEmpty())
            return false;
        if (const auto zone = database.zone(identifiers.takeLast())) {
            const ZoneNames names(now, locale);
            static_cast<void>(names.abbreviation(*zone));
            static_cast<void>(names.genericName(*zone));
        }
        return true;
    };
}

} // namespace

ZoneWarmUp::ZoneWarmUp(
    MainQueue& queue,
    const ZoneDatabase& database,
    Instant now,
    const UserLocale& locale,
    SlicedWork::SteadyTime time)
    : m_work(queue, warmUpSteps(database, now, locale), std::move(time)) {
}

} // namespace quorvane
