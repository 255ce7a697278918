// SPDX-License-Identifier: MIT
#include "IcuRelease.h"

#include <time/TypedDateReader.h>

#include <QFile>
#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

#include <string>

namespace quorvane {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono;
using namespace std::chrono_literals;

constexpr CivilDay today(local_days(2024y / March / 9)); // a Saturday

CivilDay dayOf(const QString& text) {
    const auto parts = text.split(u'-');
    return CivilDay(local_days(
        year(parts[0].toInt()) / month(parts[1].toUInt()) / std::chrono::day(parts[2].toUInt())));
}

class Reader {
public:
    explicit Reader(const char* locale) : m_reader(UserLocale::named(QString::fromUtf8(locale))) {}

    TypedDate operator()(const QString& text, CivilDay fieldDay = today) const {
        return m_reader.read(text, fieldDay, today);
    }

    /// Empty for what is no date.
    std::string day(const QString& text, CivilDay fieldDay = today) const {
        const auto date = (*this)(text, fieldDay);
        if (date.state != TypingState::Complete)
            return {};
        const year_month_day ymd(*date.day);
        return u"%1-%2-%3"_s.arg(static_cast<int>(ymd.year()), 4, 10, QChar(u'0'))
            .arg(static_cast<unsigned>(ymd.month()), 2, 10, QChar(u'0'))
            .arg(static_cast<unsigned>(ymd.day()), 2, 10, QChar(u'0'))
            .toStdString();
    }

    TypingState state(const QString& text) const { return (*this)(text).state; }

private:
    TypedDateReader m_reader;
};

QStringList tableOf(const char* locale) {
    QFile file(QString::fromUtf8(TYPED_DATES));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList rows = QString::fromUtf8(file.readAll()).split(u'\n');
    erase_if(rows, [&](const QString& row) {
        return !row.startsWith(QString::fromUtf8(locale) + u'\t');
    });
    rows.replaceInStrings(
        u"\tdenna månad\t"_s,
        byIcuRelease<QString>({{72, u"\tdenna månad\t"_s}, {76, u"\tden här månaden\t"_s}}));
    return rows;
}

class TypedDateTableTest : public testing::TestWithParam<const char*> {};

TEST_P(TypedDateTableTest, DatesAndWordsOfTheLocaleAreRead) {
    const Reader read(GetParam());
    const auto rows = tableOf(GetParam());
    ASSERT_GT(rows.size(), 30);
    for (const auto& row : rows) {
        const auto fields = row.split(u'\t');
        EXPECT_EQ(read.day(fields[1]), fields[2].toStdString()) << row.toStdString();
        EXPECT_EQ(read.day(fields[1].toUpper()), fields[2].toStdString()) << row.toStdString();
        EXPECT_EQ(read.day(u"  "_s + fields[1] + u' '), fields[2].toStdString())
            << row.toStdString();
    }
}

TEST_P(TypedDateTableTest, NoneIsRefusedWhileItIsTyped) {
    const Reader read(GetParam());
    for (const auto& row : tableOf(GetParam())) {
        const auto text = row.section(u'\t', 1, 1);
        for (qsizetype length = 0; length < text.size(); ++length)
            EXPECT_NE(read.state(text.left(length)), TypingState::Refused)
                << row.toStdString() << length;
    }
}

TEST_P(TypedDateTableTest, AnyMayHaveATimeAfterIt) {
    const Reader read(GetParam());
    for (const auto& row : tableOf(GetParam())) {
        const auto fields = row.split(u'\t');
        const auto date = read(fields[1] + u" 14:05"_s);
        EXPECT_EQ(date.state, TypingState::Complete) << row.toStdString();
        EXPECT_EQ(date.day, dayOf(fields[2])) << row.toStdString();
        EXPECT_EQ(date.timeOfDay, 14h + 5min) << row.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Locales,
    TypedDateTableTest,
    testing::Values(
        "en_US",
        "en_GB",
        "de_DE",
        "fr_FR",
        "es_ES",
        "pt_BR",
        "sv_SE",
        "he_IL",
        "ja_JP",
        "ar_EG",
        "fa_IR",
        "th_TH"));

TEST(TypedDateTest, IsoDatesAreThoseOfAnotherReader) {
    QProcess python;
    python.start(u"/usr/bin/python3"_s, {QString::fromUtf8(ISO_DATE_ORACLE)}, QIODevice::ReadOnly);
    ASSERT_TRUE(python.waitForFinished() && python.exitCode() == 0);
    const auto lines = QString::fromUtf8(python.readAllStandardOutput()).split(u'\n');
    ASSERT_GT(lines.size(), 1'000);
    const Reader american("en_US");
    const Reader persian("fa_IR");
    for (const auto& line : lines.mid(0, lines.size() - 1)) {
        const auto fields = line.split(u' ');
        const auto text = QString(fields[0]).replace(u'_', u' ');
        const auto date = american(text);
        ASSERT_EQ(date.state == TypingState::Complete, fields[1] != u"-"_s) << line.toStdString();
        EXPECT_EQ(persian(text), date) << line.toStdString();
        if (fields[1] == u"-"_s)
            continue;
        EXPECT_EQ(date.day, dayOf(fields[1])) << line.toStdString();
        EXPECT_EQ(
            date.timeOfDay.value_or(-1s).count(), fields[2] == u"-"_s ? -1 : fields[2].toInt());
        EXPECT_EQ(date.offset.value_or(1s).count(), fields[3] == u"-"_s ? 1 : fields[3].toInt());
    }
}

TEST(TypedDateTest, AmbiguousDatesFollowTheLocale) {
    for (const auto& text : {u"3/4/2024"_s, u"03/04/24"_s, u"3.4.2024"_s, u"3-4-2024"_s}) {
        EXPECT_EQ(Reader("en_US").day(text), "2024-03-04") << text.toStdString();
        EXPECT_EQ(Reader("en_GB").day(text), "2024-04-03") << text.toStdString();
        EXPECT_EQ(Reader("de_DE").day(text), "2024-04-03") << text.toStdString();
    }
    EXPECT_EQ(Reader("ja_JP").day(u"24/3/4"_s), "2024-03-04");
    EXPECT_EQ(Reader("th_TH").day(u"3/4/67"_s), "2024-04-03");
    // ISO dates are ISO dates everywhere.
    EXPECT_EQ(Reader("fa_IR").day(u"1403-01-01"_s), "1403-01-01");
    EXPECT_EQ(Reader("fa_IR").day(u"1403/01/01"_s), "2024-03-20");
}

TEST(TypedDateTest, YearsOfTwoDigitsAreNearToday) {
    const Reader read("en_GB");
    EXPECT_EQ(read.day(u"1/2/24"_s), "2024-02-01");
    EXPECT_EQ(read.day(u"1/2/43"_s), "2043-02-01");
    EXPECT_EQ(read.day(u"1/2/44"_s), "1944-02-01");
    EXPECT_EQ(read.day(u"1/2/99"_s), "1999-02-01");
    EXPECT_TRUE(read(u"1/2/24"_s).mayGrow);
    EXPECT_FALSE(read(u"1/2/2024"_s).mayGrow);
}

TEST(TypedDateTest, DistancesCountFromTheFieldsDay) {
    const Reader read("en_US");
    const CivilDay january31(local_days(2024y / January / 31));
    EXPECT_EQ(read.day(u"+3"_s, january31), "2024-02-03");
    EXPECT_EQ(read.day(u"+3d"_s, january31), "2024-02-03");
    EXPECT_EQ(read.day(u"-2w"_s, january31), "2024-01-17");
    EXPECT_EQ(read.day(u"−2 W"_s, january31), "2024-01-17");
    EXPECT_EQ(read.day(u"+1m"_s, january31), "2024-02-29");
    EXPECT_EQ(read.day(u"+1y"_s, january31), "2025-01-31");
    EXPECT_EQ(read.day(u"-0"_s, january31), "2024-01-31");
    EXPECT_EQ(read.day(u"+٣"_s, january31), "2024-02-03");
    const CivilDay leapDay(local_days(2024y / February / 29));
    EXPECT_EQ(read.day(u"+1y"_s, leapDay), "2025-02-28");
    // 30 Esfand 1403, the last day of a leap year.
    EXPECT_EQ(
        Reader("fa_IR").day(u"+1y"_s, CivilDay(local_days(2025y / March / 20))), "2026-03-20");
}

TEST(TypedDateTest, WordsCountFromTodayAndNotFromTheFieldsDay) {
    const Reader read("en_US");
    const CivilDay other(local_days(2020y / May / 5));
    EXPECT_EQ(read.day(u"tomorrow"_s, other), "2024-03-10");
    EXPECT_EQ(read.day(u"Saturday"_s, other), "2024-03-09");
    EXPECT_EQ(read.day(u"fri"_s, other), "2024-03-15");
    EXPECT_EQ(read.day(u"Next Week"_s, other), "2024-03-16");
    EXPECT_EQ(Reader("de_DE").day(u"übermorgen"_s, other), "2024-03-11");
    EXPECT_TRUE(Reader("de_DE").day(u"tomorrow"_s).empty());
}

TEST(TypedDateTest, PunctuationOfWordsMayBeMissing) {
    EXPECT_EQ(Reader("en_US").day(u"mar 9 2024"_s), "2024-03-09");
    EXPECT_EQ(Reader("de_DE").day(u"9 marz 2024"_s), "");
    EXPECT_EQ(Reader("de_DE").day(u"9. feb 2024"_s), "2024-02-09");
    EXPECT_EQ(Reader("fr_FR").day(u"9 fevr 2024"_s), "");
    EXPECT_EQ(Reader("fr_FR").day(u"9 févr 2024"_s), "2024-02-09");
    EXPECT_EQ(Reader("pt_BR").day(u"sáb"_s), "2024-03-09");
    EXPECT_EQ(Reader("he_IL").day(u"יום ד'"_s), "2024-03-13");
}

TEST(TypedDateTest, DateAndTimeAreReadTogether) {
    const Reader read("en_US");
    EXPECT_EQ(read(u"tomorrow 2:05 pm"_s).timeOfDay, 14h + 5min);
    EXPECT_EQ(read(u"3/9/2024, 2:05 AM"_s).timeOfDay, 2h + 5min);
    EXPECT_EQ(read(u"+3 1405"_s).timeOfDay, 14h + 5min);
    EXPECT_EQ(read(u"2024-03-09 9 pm"_s).timeOfDay, 21h);
    EXPECT_EQ(Reader("ja_JP").operator()(u"明日 午後2:05"_s).timeOfDay, 14h + 5min);
    const auto begun = read(u"tomorrow 14:0"_s);
    EXPECT_EQ(begun.state, TypingState::Unfinished);
    EXPECT_EQ(begun.day, today + days(1));
    EXPECT_EQ(read.state(u"tomorrow 25:00"_s), TypingState::Refused);
    EXPECT_EQ(read.state(u"tomorrow 14:05 14:05"_s), TypingState::Refused);
}

TEST(TypedDateTest, NonsenseAndOverflowAreRefused) {
    const Reader read("en_US");
    for (const auto& text :
         {u"xyz"_s,
          u"2024-02-30"_s,
          u"2024-13"_s,
          u"2024-03-09T24:00"_s,
          u"2/30/2024"_s,
          u"13/1/2024"_s,
          u"0/1/2024"_s,
          u"3/9/0000"_s,
          u"3/9/20245"_s,
          u"Mar 32, 2024"_s,
          u"Foo 9, 2024"_s,
          u"+9999999"_s,
          u"-9999999"_s,
          u"+99999999999999999999"_s,
          u"+999999y"_s,
          u"-999999m"_s,
          u"+3x"_s,
          u"++3"_s,
          u"3"_s + QString(200, u'9'),
          QString(100'000, u'1'),
          u"tomorrowx"_s,
          u"tomorrow tomorrow"_s,
          u"\u0000"_s + u"tomorrow"_s})
        EXPECT_EQ(read.state(text), TypingState::Refused) << text.left(40).toStdString();
}

TEST(TypedDateTest, WhatMayBecomeADateIsUnfinished) {
    const Reader read("en_US");
    for (const auto& text :
         {u""_s,
          u" "_s,
          u"t"_s,
          u"tomo"_s,
          u"+"_s,
          u"2024"_s,
          u"2024-0"_s,
          u"3/"_s,
          u"Mar 9,"_s,
          u"next "_s,
          u"20240309T14"_s,
          u"2024-03-09T14:05+0"_s})
        EXPECT_EQ(read.state(text), TypingState::Unfinished) << text.toStdString();
}

} // namespace
} // namespace quorvane
