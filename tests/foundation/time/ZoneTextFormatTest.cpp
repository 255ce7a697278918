// SPDX-License-Identifier: MIT
#include "IcuRelease.h"
#include "ZoneOracle.h"

#include <time/DateText.h>
#include <time/IcuTimeZone.h>
#include <time/ZoneDatabase.h>
#include <time/ZoneNames.h>

#include <QDateTime>
#include <gtest/gtest.h>
#include <unicode/tznames.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 halfYear = 182 * 86400;

constexpr std::array locales{"en_US", "en_CA", "en_GB", "en_AU", "de_DE", "fr_FR", "ja_JP"};

/// Of today as well: laws change after this was written.
std::vector<qint64> seasons() {
    constexpr qint64 november2026 = 1795320000; // 2026-11-22T04:00:00Z
    const auto now = QDateTime::currentSecsSinceEpoch();
    return {november2026, november2026 + halfYear, now, now + halfYear};
}

/// What the oracle says of all zones at `seasons()`.
const std::vector<OracleOffset>& offsets() {
    static const auto all = oracleOffsetsAt(seasons());
    return all;
}

const ZoneDatabase& database() {
    static const ZoneDatabase zones;
    return zones;
}

bool isOffset(const QString& text) {
    return std::ranges::any_of(text, [](QChar each) { return each.isDigit(); });
}

QString name(const OracleOffset& offset, const UserLocale& locale) {
    const auto zone = database().zone(offset.identifier).value();
    return zoneAbbreviation(zone, {offset.secondsSince1970}, locale).value_or(QString());
}

/// Milliseconds or seconds since 1970, and a name.
using NameAtInstant = std::pair<double, QString>;

class ZoneTextFormatTest : public testing::TestWithParam<const char*> {
protected:
    const UserLocale m_locale = UserLocale::named(QString::fromUtf8(GetParam()));
};

TEST_P(ZoneTextFormatTest, ZonesThatShareANameShareTheOffset) {
    ASSERT_FALSE(offsets().empty()) << "no /usr/bin/python3 with zoneinfo";
    const auto catalogue = database().zonesByCountry();
    const std::set<QString> isListed(catalogue.begin(), catalogue.end());
    std::map<NameAtInstant, OracleOffset> firstOf;
    for (const auto& offset : offsets()) {
        const auto text = name(offset, m_locale);
        if (!isListed.contains(offset.identifier) || isOffset(text))
            continue;
        const auto [first, isNew] = firstOf.try_emplace({offset.secondsSince1970, text}, offset);
        EXPECT_EQ(first->second.secondsFromGMT, offset.secondsFromGMT)
            << text.toStdString() << ": " << first->second.identifier.toStdString() << " and "
            << offset.identifier.toStdString() << " at " << qint64(offset.secondsSince1970);
    }
    EXPECT_GE(firstOf.size(), seasons().size()) << "no zone has a name";
}

/// A name means an offset for the standard and for the daylight time of each zone that ICU gives it
/// to. While no name means two in ICU's own data, no law can make two zones clash under one name.
TEST_P(ZoneTextFormatTest, NoNameOfIcusMeansTwoOffsets) {
    auto status = U_ZERO_ERROR;
    const std::unique_ptr<icu::TimeZoneNames> names(
        icu::TimeZoneNames::createInstance(m_locale.icuLocale(), status));
    ASSERT_TRUE(U_SUCCESS(status));
    std::map<NameAtInstant, std::set<int32_t>> meanings;
    for (const auto& identifier : database().zonesByCountry()) {
        const auto own = icuOwnTimeZone(database().zone(identifier).value());
        if (!own)
            continue;
        icu::UnicodeString id;
        icu::UnicodeString canonical;
        UBool isSystemId = false;
        icu::TimeZone::getCanonicalID(own->getID(id), canonical, isSystemId, status);
        for (const auto instant : seasons()) {
            const UDate date = static_cast<double>(instant) * 1000;
            int32_t raw = 0;
            int32_t daylight = 0;
            own->getOffset(date, false, raw, daylight, status);
            const auto note = [&](UTimeZoneNameType type, int32_t offset) {
                icu::UnicodeString text;
                names->getDisplayName(canonical, type, date, text);
                if (!text.isEmpty())
                    meanings[{date, QString::fromUtf16(text.getTerminatedBuffer())}].insert(offset);
            };
            note(UTZNM_SHORT_STANDARD, raw);
            if (const auto savings = daylight != 0 ? daylight : own->getDSTSavings(); savings != 0)
                note(UTZNM_SHORT_DAYLIGHT, raw + savings);
        }
    }
    ASSERT_TRUE(U_SUCCESS(status));
    for (const auto& [name, offsetsOfName] : meanings)
        EXPECT_EQ(offsetsOfName.size(), 1U) << name.second.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Locales, ZoneTextFormatTest, testing::ValuesIn(locales));

// What readers in North America take the names for.
TEST(ZoneTextFormat, AmericanNamesMeanTheirOffset) {
    ASSERT_FALSE(offsets().empty()) << "no /usr/bin/python3 with zoneinfo";
    const std::map<QString, int> hours{
        {u"AST"_s, -4},
        {u"ADT"_s, -3},
        {u"EST"_s, -5},
        {u"EDT"_s, -4},
        {u"CST"_s, -6},
        {u"CDT"_s, -5},
        {u"MST"_s, -7},
        {u"MDT"_s, -6},
        {u"PST"_s, -8},
        {u"PDT"_s, -7},
        {u"AKST"_s, -9},
        {u"AKDT"_s, -8},
        {u"HST"_s, -10}};
    const auto locale = UserLocale::named(u"en_US"_s);
    std::set<QString> seen;
    for (const auto& offset : offsets()) {
        const auto found = hours.find(name(offset, locale));
        if (found == hours.end())
            continue;
        EXPECT_EQ(offset.secondsFromGMT, found->second * 3600)
            << found->first.toStdString() << " in " << offset.identifier.toStdString();
        seen.insert(found->first);
    }
    EXPECT_EQ(seen.size(), hours.size());
}

// British Columbia stays on UTC-7 from 2026 on; older data have the change of clocks.
TEST(ZoneTextFormat, LawThatIsNewerThanIcusIsToldByTheNameThatMeansIt) {
    for (const auto& offset : offsets()) {
        if (offset.identifier != "America/Vancouver"_L1)
            continue;
        const bool isSeven = offset.secondsFromGMT == -7 * 3600;
        const auto vancouver = database().zone(offset.identifier).value();
        const auto english = UserLocale::named(u"en_US"_s);
        const auto text = [&](const QString& pattern) {
            return patternText({offset.secondsSince1970}, vancouver, pattern, english);
        };
        EXPECT_EQ(text(u"zzz"_s), isSeven ? u"PDT"_s : u"PST"_s);
        EXPECT_EQ(
            text(u"zzzz"_s), isSeven ? u"Pacific Daylight Time"_s : u"Pacific Standard Time"_s);
        EXPECT_EQ(text(u"VV"_s), u"America/Vancouver"_s);
    }
}

// Ojinaga took Central Time in October 2022; ICU 72 has the Mountain Time of before.
TEST(ZoneTextFormat, WithoutANameThatMeansItTheOffsetIsTold) {
    const auto ojinaga = database().zone(u"America/Ojinaga"_s).value();
    const auto english = UserLocale::named(u"en_US"_s);
    const auto text = [&](double instant, const QString& pattern) {
        return patternText({instant}, ojinaga, pattern, english);
    };
    constexpr double winter = 1705320000; // 2024-01-15T12:00:00Z
    constexpr double summer = 1721044800; // 2024-07-15T12:00:00Z
    EXPECT_EQ(text(winter, u"zzz"_s), byIcuRelease<QString>({{72, u"MDT"_s}, {76, u"CST"_s}}));
    EXPECT_EQ(text(summer, u"zzz"_s), byIcuRelease<QString>({{72, u"GMT-5"_s}, {76, u"CDT"_s}}));
    EXPECT_EQ(
        text(summer, u"zzzz"_s),
        byIcuRelease<QString>({{72, u"GMT-05:00"_s}, {76, u"Central Daylight Time"_s}}));
    EXPECT_EQ(text(summer, u"vvvv"_s).contains(u"Mountain"_s), false)
        << text(summer, u"vvvv"_s).toStdString();
}

} // namespace
} // namespace quorvane
