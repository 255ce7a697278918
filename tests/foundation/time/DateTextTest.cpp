// SPDX-License-Identifier: MIT
#include "IcuRelease.h"

#include <time/DateText.h>
#include <time/ZoneDatabase.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr Instant march9{1710021900}; // 2024-03-09T22:05:00Z
constexpr Instant july15{1721044800}; // 2024-07-15T12:00:00Z
constexpr char16_t narrowSpace = 0x202F;

TimeZone zone(const char* identifier) {
    return ZoneDatabase().zone(QString::fromUtf8(identifier)).value();
}

UserLocale locale(const char* name) {
    return UserLocale::named(QString::fromUtf8(name));
}

std::string inPattern(
    Instant instant,
    const char* zoneName,
    const QString& pattern,
    const char* localeName = "en_US") {
    return patternText(instant, zone(zoneName), pattern, locale(localeName)).toStdString();
}

TEST(DateText, ZonesThatChangedSinceIcusDataHaveTheirPresentOffset) {
    const auto pattern = u"yyyy-MM-dd HH:mm zzz"_s;
    EXPECT_EQ(
        inPattern(july15, "America/Ciudad_Juarez", pattern),
        byIcuRelease<std::string>({{72, "2024-07-15 06:00 GMT-6"}, {76, "2024-07-15 06:00 MDT"}}));
    EXPECT_EQ(inPattern(july15, "America/Coyhaique", pattern), "2024-07-15 08:00 GMT-4");
    EXPECT_EQ(inPattern(july15, "Africa/Cairo", pattern), "2024-07-15 15:00 GMT+3");
    EXPECT_EQ(inPattern(july15, "America/Mexico_City", pattern), "2024-07-15 06:00 CST");
    EXPECT_EQ(inPattern(july15, "Asia/Almaty", pattern), "2024-07-15 17:00 GMT+5");
}

TEST(DateText, AbbreviationsAreTheLocalesNotTheDatabases) {
    EXPECT_EQ(inPattern(july15, "Asia/Tokyo", u"zzz"_s), "GMT+9");
    EXPECT_EQ(inPattern(july15, "America/New_York", u"zzz"_s), "EDT");
    EXPECT_EQ(inPattern(march9, "America/New_York", u"zzz"_s), "EST");
    EXPECT_EQ(inPattern(march9, "America/New_York", u"zzz"_s, "fr_FR"), "UTC−5");
    EXPECT_EQ(inPattern(march9, "UTC", u"zzz"_s), "UTC");
    EXPECT_EQ(inPattern(march9, "Etc/GMT+12", u"zzz"_s), "GMT-12");
}

// By CPython: datetime(1582, 10, 4, 12, tzinfo=timezone.utc).timestamp(), and so on; its calendar
// is proleptic.
TEST(DateText, IsoDatesAreGregorianBeforeThatCalendarWasIntroduced) {
    const auto utc = ZoneDatabase::utc();
    const auto date = iso8601::year | iso8601::month | iso8601::day | iso8601::dashSeparatorInDate;
    const auto text = [&](double instant) {
        return iso8601Text({instant}, utc, date).toStdString();
    };
    EXPECT_EQ(text(-12219249600), "1582-10-15");
    EXPECT_EQ(text(-12219336000), "1582-10-14");
    EXPECT_EQ(text(-14831726400), "1500-01-01");
    EXPECT_EQ(text(-62135553600), "0001-01-01");
}

TEST(DateText, GenericNamesAndZoneCodesAreThere) {
    EXPECT_EQ(inPattern(july15, "America/Los_Angeles", u"vvvv"_s), "Pacific Time");
    EXPECT_EQ(
        inPattern(july15, "America/Los_Angeles", u"V VV VVV"_s),
        "uslax America/Los_Angeles Los Angeles");
    EXPECT_EQ(inPattern(july15, "America/Phoenix", u"vvvv"_s), "Mountain Standard Time");
}

TEST(DateText, PatternIsTakenAsItIs) {
    EXPECT_EQ(inPattern(march9, "UTC", QString()), "");
    EXPECT_EQ(inPattern(march9, "UTC", u"'literal only'"_s), "literal only");
    EXPECT_EQ(inPattern(march9, "UTC", u"'a''b'"_s), "a'b");
    EXPECT_EQ(inPattern(march9, "UTC", u"🙂 HH:mm"_s), "🙂 22:05");
    EXPECT_EQ(inPattern(march9, "UTC", u"h\u202Fa\u00A0B"_s).substr(0, 7), "10\u202FPM");
    EXPECT_EQ(inPattern(march9, "UTC", u"yyyy n MM 'end'"_s), "2024  ");
}

// Dates by strftime("%G-W%V-%u"). In the USA weeks begin on Sunday, in Egypt on Saturday.
TEST(DateText, WeekBehindAQuotedWIsOneOfIso8601InEveryLocale) {
    const auto isoWeek = u"YYYY-'W'ww-e"_s;
    for (const auto* name : {"en_US", "de_DE", "en_GB", "pt_BR"}) {
        EXPECT_EQ(inPattern({1795348800}, "UTC", isoWeek, name), "2026-W47-7") << name;
        EXPECT_EQ(inPattern({1798804800}, "UTC", isoWeek, name), "2026-W53-5") << name;
        EXPECT_EQ(inPattern({1799064000}, "UTC", isoWeek, name), "2027-W01-1") << name;
        EXPECT_EQ(inPattern({1735560000}, "UTC", isoWeek, name), "2025-W01-1") << name;
    }
    EXPECT_EQ(inPattern({1798804800}, "UTC", u"YYYY ww"_s, "en_US"), "2027 01");
    EXPECT_EQ(inPattern({1798804800}, "UTC", u"YYYY ww"_s, "de_DE"), "2026 53");
}

TEST(DateText, OffsetZeroIsZOnlyForTheLetterX) {
    EXPECT_EQ(inPattern(march9, "UTC", u"X XXXXX Z"_s), "Z Z +0000");
}

TEST(DateText, MillisecondsAreFloored) {
    EXPECT_EQ(inPattern({-0.0001}, "UTC", u"yyyy-MM-dd HH:mm:ss.SSS"_s), "1969-12-31 23:59:59.999");
    EXPECT_EQ(inPattern({1.9996}, "UTC", u"ss.SSS"_s), "01.999");
}

TEST(DateText, BothStylesNoneIsEmpty) {
    EXPECT_TRUE(styledText(march9, zone("UTC"), {}, locale("en_US")).isEmpty());
}

TEST(DateText, StylesFollowTheLocale) {
    const auto styled = [](FormatStyles styles, const char* name) {
        return styledText(march9, zone("America/Los_Angeles"), styles, locale(name)).toStdString();
    };
    const FormatStyles both{FormatStyle::Medium, FormatStyle::Short};
    EXPECT_EQ(styled(both, "en_US"), "Mar 9, 2024, 2:05 PM");
    EXPECT_EQ(styled(both, "de_DE"), "09.03.2024, 14:05");
    EXPECT_EQ(styled({FormatStyle::Short, FormatStyle::None}, "en_US"), "3/9/24");
    EXPECT_EQ(styled({FormatStyle::None, FormatStyle::Short}, "en_US"), "2:05 PM");
}

TEST(DateText, CalendarAndDigitsAreTheLocales) {
    EXPECT_EQ(inPattern(march9, "UTC", u"yyyy"_s, "th_TH"), "2567");             // Buddhist era
    EXPECT_EQ(inPattern(march9, "UTC", u"yyyy/MM/dd"_s, "fa_IR"), "۱۴۰۲/۱۲/۱۹"); // Solar Hijri
    EXPECT_EQ(inPattern(march9, "UTC", u"yyyy-MM-dd"_s, "ar_EG"), "٢٠٢٤-٠٣-٠٩");
    EXPECT_EQ(dateChipText(march9, zone("UTC"), locale("th_TH")).toStdString(), "9 มี.ค. 2567");
    EXPECT_EQ(dateChipText(march9, zone("UTC"), locale("fa_IR")).toStdString(), "۱۹ اسفند ۱۴۰۲");
    EXPECT_EQ(timeChipText(march9, zone("UTC"), locale("fa_IR")).toStdString(), "۲۲:۰۵");
}

TEST(DateText, ChipsHaveTwoDigitsOfTimeAndAnAbbreviatedMonth) {
    EXPECT_EQ(timeChipText(march9, zone("America/Los_Angeles"), locale("en_US")), u"02:05 PM"_s);
    EXPECT_EQ(timeChipText(march9, zone("Europe/Berlin"), locale("de_DE")), u"23:05"_s);
    EXPECT_EQ(dateChipText(march9, zone("America/Los_Angeles"), locale("en_US")), u"Mar 9, 2024"_s);
    EXPECT_EQ(dateChipText(march9, zone("Asia/Tokyo"), locale("en_US")), u"Mar 10, 2024"_s);
}

TEST(DateText, Iso8601IsGregorianAndAscii) {
    EXPECT_EQ(
        iso8601Text(march9, zone("America/Los_Angeles"), iso8601::internetDateTime),
        u"2024-03-09T14:05:00-08:00"_s);
    EXPECT_EQ(
        iso8601Text(march9, zone("UTC"), iso8601::internetDateTime), u"2024-03-09T22:05:00Z"_s);
}

TEST(DateText, NoLocaleHasANarrowSpaceInStylesAndChips) {
    int32_t count = 0;
    const auto* locales = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 700);
    const auto london = zone("Europe/London");
    for (int32_t i = 0; i < count; ++i) {
        const auto user = locale(locales[i].getName());
        const FormatStyles both{FormatStyle::Short, FormatStyle::Short};
        for (const auto& text :
             {styledText(march9, london, both, user), timeChipText(march9, london, user)}) {
            EXPECT_FALSE(text.contains(narrowSpace)) << locales[i].getName();
            EXPECT_FALSE(text.isEmpty()) << locales[i].getName();
        }
    }
}

} // namespace
} // namespace quorvane
