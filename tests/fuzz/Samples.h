// SPDX-License-Identifier: MIT
#pragma once

#include "FuzzInput.h"

#include <time/UserLocale.h>
#include <time/ZoneDatabase.h>

#include <array>

/// What targets choose from by a byte, made once: making them takes longer than using them.
namespace quorvane::samples {

/// Of other calendars, digits, directions and orders.
[[nodiscard]] inline const UserLocale& locale(FuzzInput& input) {
    using namespace Qt::StringLiterals;
    static const std::array locales{
        UserLocale::named(u"en_US"_s),
        UserLocale::named(u"de_DE"_s),
        UserLocale::named(u"ja_JP"_s),
        UserLocale::named(u"ar_EG"_s),
        UserLocale::named(u"fa_IR"_s),
        UserLocale::named(u"th_TH"_s),
        UserLocale::named(u"he_IL"_s),
        UserLocale::named(u"sr_Latn_RS"_s)};
    return input.oneOf(locales);
}

[[nodiscard]] inline const ZoneDatabase& zones() {
    static const ZoneDatabase database;
    return database;
}

[[nodiscard]] inline TimeZone zone(FuzzInput& input) {
    using namespace Qt::StringLiterals;
    static const std::array identifiers{
        u"UTC"_s,
        u"America/New_York"_s,
        u"Asia/Kathmandu"_s,
        u"Europe/Dublin"_s,
        u"Australia/Lord_Howe"_s,
        u"Pacific/Apia"_s};
    return zones().zone(input.oneOf(identifiers)).value_or(ZoneDatabase::utc());
}

/// Of the years 1 to 9999, which is what the interface can reach.
[[nodiscard]] inline Instant instant(FuzzInput& input) {
    constexpr double first = -62135596800.0;
    constexpr double span = 315537897599.0;
    constexpr double units = 18446744073709551616.0;
    return {first + span * (static_cast<double>(input.number<std::uint64_t>()) / units)};
}

} // namespace quorvane::samples
