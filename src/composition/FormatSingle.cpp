// SPDX-License-Identifier: MIT
#include <composition/FormatSingle.h>
#include <time/DateText.h>
#include <time/ZoneNames.h>

#include <cmath>
#include <cstdlib>

namespace quorvane {

namespace {

/// A preset's texts with date and time, with the time alone, and with the date alone.
template <typename T>
struct Variants {
    T both;
    T time;
    T date;

    [[nodiscard]] const T& chosenBy(const FormatSettings& settings) const {
        if (!settings.includeTime)
            return date;
        return settings.includeDate ? both : time;
    }
};

// English layouts on purpose, whatever the locale: only names and digits follow it.
constexpr Variants<QStringView> longPatterns{
    u"MMMM d, yyyy 'at' h:mm a zzz", u"h:mm a zzz", u"MMMM d, yyyy"};
constexpr Variants<QStringView> dayOfWeekPatterns{
    u"EEEE, MMMM d, yyyy 'at' h:mm a zzz", u"EEEE 'at' h:mm a zzz", u"EEEE, MMMM d, yyyy"};

// RFC 2822, section 3.3.
constexpr Variants<QStringView> rfc2822Patterns{
    u"EEE, dd MMM yyyy HH:mm:ss Z", u"HH:mm:ss Z", u"EEE, dd MMM yyyy"};

constexpr Variants<Iso8601Options> iso8601Variants{
    iso8601::internetDateTime,
    iso8601::time | iso8601::colonSeparatorInTime | iso8601::timeZone,
    iso8601::fullDate};

QString styledWithZone(
    Instant instant, const TimeZone& zone, FormatStyle dateStyle, const FormatSettings& settings) {
    const FormatStyles styles{
        settings.includeDate ? dateStyle : FormatStyle::None,
        settings.includeTime ? FormatStyle::Short : FormatStyle::None};
    auto text = styledText(instant, zone, styles, settings.locale);
    if (!settings.includeTime)
        return text;
    return text + u' ' + zoneAbbreviation(zone, instant, settings.locale).value_or(QString());
}

QString unixTimestamp(Instant instant) {
    const double seconds = std::trunc(instant.secondsSince1970);
    // The limits of 64 bits; the upper one is the first double that no longer fits. Not a number
    // fails both comparisons.
    const bool fits = seconds >= -9223372036854775808.0 && seconds < 9223372036854775808.0;
    if (!fits)
        std::abort();
    return QString::number(static_cast<qint64>(seconds));
}

} // namespace

QString formatSingle(
    Instant instant,
    const TimeZone& zone,
    DateFormatPreset preset,
    const FormatSettings& settings) {
    const auto pattern = [&](QStringView text) {
        return patternText(instant, zone, text.toString(), settings.locale);
    };
    switch (preset) {
    case DateFormatPreset::LongForm:
        return pattern(longPatterns.chosenBy(settings));
    case DateFormatPreset::MediumForm:
        return styledWithZone(instant, zone, FormatStyle::Medium, settings);
    case DateFormatPreset::ShortForm:
        return styledWithZone(instant, zone, FormatStyle::Short, settings);
    case DateFormatPreset::Iso8601:
        return iso8601Text(instant, zone, iso8601Variants.chosenBy(settings));
    case DateFormatPreset::Rfc2822:
        return patternText(
            instant, zone, rfc2822Patterns.chosenBy(settings).toString(), UserLocale::posix());
    case DateFormatPreset::DateOnly:
        return pattern(longPatterns.date);
    case DateFormatPreset::TimeOnly:
        return pattern(longPatterns.time);
    case DateFormatPreset::WithDayOfWeek:
        return pattern(dayOfWeekPatterns.chosenBy(settings));
    case DateFormatPreset::UnixTimestamp:
        return unixTimestamp(instant);
    case DateFormatPreset::Custom:
        return patternText(instant, zone, settings.customPattern, settings.locale);
    }
    Q_UNREACHABLE();
}

} // namespace quorvane
