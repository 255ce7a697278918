// SPDX-License-Identifier: MIT
#include "FuzzFolder.h"
#include "Samples.h"

#include <time/CivilTime.h>
#include <time/DateText.h>
#include <time/ZoneNames.h>

#include <cstdlib>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

/// A name that ICU knows a zone by, and one that it does not.
QString identifierIn(FuzzInput& input) {
    return input.flag() ? u"Europe/Dublin"_s : u"Fuzz/Zone"_s;
}

void check(const TimeZone& zone, Instant instant, const UserLocale& locale) {
    // RFC 9636, 3.2.
    const int offset = zone.secondsFromGMT(instant);
    demand(offset > -25 * 3600 && offset < 26 * 3600, "offsets are those of places on Earth");
    (void) zone.isDaylightTime(instant);
    const auto shown = civilTime(instant, zone);
    demand(
        shown.timeOfDay >= std::chrono::seconds(0) && shown.timeOfDay < std::chrono::hours(24),
        "a time of the day");
    (void) instantAt(shown, zone, instant);
    (void) iso8601Text(instant, zone, {});
    (void) patternText(instant, zone, u"G y-MM-dd HH:mm:ss XXXXX zzzz vvvv"_s, locale);
}

} // namespace

/// Any bytes as the compiled file of a zone, which TZ, TZDIR and /etc/localtime may lead to.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzFolder folder;
    FuzzInput input(data, size);
    const auto& locale = samples::locale(input);
    const auto identifier = identifierIn(input);
    const auto instant = samples::instant(input);
    folder.write(u"tzdata.zi"_s, "Z " + identifier.toUtf8() + " 0 - UTC\n");
    folder.write(identifier, input.rest());
    const ZoneDatabase database(folder.path());
    const auto zone = database.zone(identifier);
    if (!zone)
        return 0;
    for (const auto each : {instant, Instant{0}, Instant{1e12}, Instant{-1e12}})
        check(*zone, each, locale);
    return 0;
}
