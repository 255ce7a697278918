// SPDX-License-Identifier: MIT
#include "DatabaseTimeZone.h"
#include "IcuText.h"
#include "LocalePattern.h"
#include "ZoneTextFormat.h"

#include <time/DatePattern.h>
#include <time/DateText.h>
#include <time/IcuTimeZone.h>

#include <unicode/datefmt.h>
#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <limits>
#include <memory>
#include <utility>

namespace quorvane {

namespace {

// ICU counts calendar days by 32 bits.
constexpr UDate earliestDate = std::numeric_limits<int32_t>::min() * double{U_MILLIS_PER_DAY};

icu::UnicodeString withPlainSpaces(icu::UnicodeString pattern) {
    return pattern.findAndReplace(
        icu::UnicodeString(char16_t{0x202F}), icu::UnicodeString(char16_t{0x0020}));
}

icu::DateFormat::EStyle icuStyle(FormatStyle style) {
    switch (style) {
    case FormatStyle::None:
        return icu::DateFormat::kNone;
    case FormatStyle::Short:
        return icu::DateFormat::kShort;
    case FormatStyle::Medium:
        return icu::DateFormat::kMedium;
    }
    return icu::DateFormat::kNone;
}

QString rendered(icu::DateFormat& formatter, Instant instant, std::unique_ptr<icu::TimeZone> zone) {
    formatter.adoptTimeZone(zone.release());
    icu::UnicodeString text;
    return fromIcu(formatter.format(icuDate(instant), text));
}

// ISO 8601, 4.3.2: weeks begin on Monday, and the first one of a year has four of its days.
void countIsoWeeks(icu::DateFormat& formatter) {
    std::unique_ptr<icu::Calendar> calendar(formatter.getCalendar()->clone());
    calendar->setFirstDayOfWeek(UCAL_MONDAY);
    calendar->setMinimalDaysInFirstWeek(4);
    formatter.adoptCalendar(calendar.release());
}

QString rendered(
    const icu::UnicodeString& pattern,
    Instant instant,
    const TimeZone& zone,
    const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    icu::SimpleDateFormat formatter(pattern, locale.icuLocale(), status);
    if (U_FAILURE(status))
        return {};
    if (hasIsoWeek(fromIcu(pattern)))
        countIsoWeeks(formatter);
    auto icuZone = icuTimeZoneAt(zone, instant);
    // Costly, and no different for a zone about which ICU and the system agree.
    if (dynamic_cast<const DatabaseTimeZone*>(icuZone.get()) != nullptr)
        formatter.adoptTimeZoneFormat(ZoneTextFormat::make(locale).release());
    return rendered(formatter, instant, std::move(icuZone));
}

QString
chipText(DateSkeleton skeleton, Instant instant, const TimeZone& zone, const UserLocale& locale) {
    const auto pattern = localePattern(skeleton, locale);
    return pattern.isEmpty() ? QString()
                             : rendered(withPlainSpaces(pattern), instant, zone, locale);
}

} // namespace

QString patternText(
    Instant instant, const TimeZone& zone, const QString& pattern, const UserLocale& locale) {
    return rendered(toIcu(pattern), instant, zone, locale);
}

QString
styledText(Instant instant, const TimeZone& zone, FormatStyles styles, const UserLocale& locale) {
    // Without either style ICU does not print nothing, but a default of its own.
    if (styles.date == FormatStyle::None && styles.time == FormatStyle::None)
        return {};
    const std::unique_ptr<icu::DateFormat> formatter(icu::DateFormat::createDateTimeInstance(
        icuStyle(styles.date), icuStyle(styles.time), locale.icuLocale()));
    if (!formatter)
        return {};
    if (auto* simple = dynamic_cast<icu::SimpleDateFormat*>(formatter.get())) {
        icu::UnicodeString pattern;
        simple->applyPattern(withPlainSpaces(simple->toPattern(pattern)));
    }
    return rendered(*formatter, instant, icuTimeZoneAt(zone, instant));
}

QString iso8601Text(Instant instant, const TimeZone& zone, Iso8601Options options) {
    auto status = U_ZERO_ERROR;
    const auto posix = UserLocale::posix().icuLocale();
    icu::SimpleDateFormat formatter(toIcu(iso8601Pattern(options)), posix, status);
    auto calendar = std::make_unique<icu::GregorianCalendar>(posix, status);
    // The standard counts by the Gregorian calendar also before there was one.
    calendar->setGregorianChange(earliestDate, status);
    if (U_FAILURE(status))
        return {};
    formatter.adoptCalendar(calendar.release());
    return rendered(formatter, instant, icuTimeZoneAt(zone, instant));
}

QString timeChipText(Instant instant, const TimeZone& zone, const UserLocale& locale) {
    return chipText(DateSkeleton::HoursAndMinutes, instant, zone, locale);
}

QString dateChipText(Instant instant, const TimeZone& zone, const UserLocale& locale) {
    return chipText(DateSkeleton::DayInWords, instant, zone, locale);
}

} // namespace quorvane
