// SPDX-License-Identifier: MIT
#include "Samples.h"

#include <platform/KeyCodes.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <timezones/TimeZoneCatalogue.h>

namespace quorvane::sample {

using namespace Qt::StringLiterals;

const ZoneDatabase& zones() {
    static const ZoneDatabase database;
    return database;
}

const Clock& clock() {
    static const FixedClock stopped(now);
    return stopped;
}

const CurrentZone& currentZone() {
    static const FixedCurrentZone newYork(
        zones().zone(u"America/New_York"_s).value_or(ZoneDatabase::utc()));
    return newYork;
}

UserLocale locale() {
    return UserLocale::named(u"en_US"_s);
}

FakeKeyboardLayout keyboard() {
    FakeKeyboardLayout layout;
    layout.setKey(keycode::d, u"d");
    return layout;
}

EntryDependencies entryDependencies() {
    return {clock(), currentZone(), locale(), {}};
}

QStringList everyZone() {
    QStringList identifiers;
    const TimeZoneCatalogue catalogue(zones(), now);
    for (const auto& entry : catalogue.entries())
        identifiers.append(entry.zone.identifier());
    return identifiers;
}

void selectZones(DateTimeModel& model, const QStringList& identifiers) {
    model.setSelectedTimeZones(zones().zones(identifiers));
}

std::vector<ServiceState> serviceStates() {
    return {
        {DesktopService::Shortcut,
         false,
         u"This desktop does not let Quorvane take a shortcut: bind one to it in the desktop's own "
         "settings."_s},
        {DesktopService::FrontWindow,
         false,
         u"This desktop does not tell which window is in front: Insert goes to the one that gets "
         "the keyboard when the panel has closed."_s}};
}

void composeRange(DateTimeModel& model, Instant end) {
    model.setIsRange(true);
    model.setEndDate(end);
    selectZones(
        model,
        {u"America/New_York"_s, u"America/Los_Angeles"_s, u"Europe/London"_s, u"Asia/Tokyo"_s});
    model.setFormatPreset(DateFormatPreset::MediumForm);
    model.setMultiZoneLayout(MultiZoneLayout::Lines);
}

} // namespace quorvane::sample
