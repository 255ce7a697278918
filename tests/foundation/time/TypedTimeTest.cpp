// SPDX-License-Identifier: MIT
#include "IcuRelease.h"

#include <time/HourCycle.h>
#include <time/TypedTime.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TypedTime read(const QString& text, const char* locale = "en_US") {
    return TypedTimeReader(UserLocale::named(QString::fromUtf8(locale))).read(text);
}

struct Time {
    const char* locale;
    QString text;
    int hour;
    std::optional<int> minute = {};
};

class TypedTimeTest : public testing::TestWithParam<Time> {};

TEST_P(TypedTimeTest, IsReadWithSeparatorsWordsAndDigitsOfEveryKind) {
    const auto& [locale, text, hour, minute] = GetParam();
    const auto time = read(text, locale);
    EXPECT_EQ(time.state, TypingState::Complete) << text.toStdString();
    EXPECT_EQ(time.hour, hour) << text.toStdString();
    EXPECT_EQ(time.minute, minute) << text.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    WithoutWords,
    TypedTimeTest,
    testing::Values(
        Time{"en_US", u"14:05"_s, 14, 5},
        Time{"en_US", u"2:05"_s, 2, 5},
        Time{"en_US", u"02:05"_s, 2, 5},
        Time{"en_US", u"1405"_s, 14, 5},
        Time{"en_US", u"0000"_s, 0, 0},
        Time{"en_US", u"0:59"_s, 0, 59},
        Time{"fi_FI", u"14.05"_s, 14, 5},
        Time{"fr_FR", u"14h05"_s, 14, 5},
        Time{"fr_CA", u"14 h 05"_s, 14, 5},
        Time{"ja_JP", u"14時05分"_s, 14, 5},
        Time{"ja_JP", u"１４：０５"_s, 14, 5},
        Time{"ar_EG", u"١٤:٠٥"_s, 14, 5},
        Time{"fa_IR", u"۱۴۰۵"_s, 14, 5}));

// The words are those of CLDR.
INSTANTIATE_TEST_SUITE_P(
    WithWords,
    TypedTimeTest,
    testing::Values(
        Time{"en_US", u"2:05 pm"_s, 14, 5},
        Time{"en_US", u"2:05PM"_s, 14, 5},
        Time{"en_US", u"2:05 p.m."_s, 14, 5},
        Time{"en_US", u"2:05p"_s, 14, 5},
        Time{"en_US", u"12:05 am"_s, 0, 5},
        Time{"en_US", u"12:05 pm"_s, 12, 5},
        Time{"en_US", u"14:05 pm"_s, 14, 5},
        Time{"en_US", u"0205 pm"_s, 14, 5},
        Time{"en_US", u"2:05 in the afternoon"_s, 14, 5},
        Time{"en_US", u"9 am"_s, 9},
        Time{"en_US", u"9p"_s, 21},
        Time{"de_DE", u"2.05 nachm."_s, 14, 5},
        Time{"de_DE", u"2.05 nachm"_s, 14, 5},
        Time{"de_DE", u"2:05 pm"_s, 14, 5},
        Time{"es_ES", u"2:05 p. m."_s, 14, 5},
        Time{"es_ES", u"9 de la noche"_s, 21},
        Time{"sv_SE", u"2:05 em"_s, 14, 5},
        Time{"he_IL", byIcuRelease<QString>({{72, u"2:05 אחה״צ"_s}, {76, u"2:05 PM"_s}}), 14, 5},
        Time{
            "he_IL",
            byIcuRelease<QString>({{72, u"2:05 אחה\"צ"_s}, {76, u"2:05 בצהריים"_s}}),
            14,
            5},
        Time{"ar_EG", u"٢:٠٥ م"_s, 14, 5},
        Time{"ar_EG", u"٢:٠٥ ص"_s, 2, 5},
        Time{"fa_IR", u"۲:۰۵ ب.ظ."_s, 14, 5},
        Time{"ja_JP", u"午後2:05"_s, 14, 5},
        Time{"ko_KR", u"PM 2:05"_s, 14, 5},
        Time{"th_TH", u"2:05 หลังเที่ยง"_s, 14, 5},
        Time{"zh_CN", u"下午2时05分"_s.replace(u'时', u'時'), 14, 5}));

TEST(TypedTimeStateTest, EveryMinuteOfTheDayIsReadAndOthersAreRefused) {
    const TypedTimeReader reader(UserLocale::named(u"en_US"_s));
    for (int hour = 0; hour < 30; ++hour) {
        for (int minute = 0; minute < 70; ++minute) {
            const auto digits = u"%1"_s.arg(minute, 2, 10, QChar(u'0'));
            const auto time = reader.read(QString::number(hour) + u':' + digits);
            const bool isTime = hour < 24 && minute < 60;
            ASSERT_EQ(time.state, isTime ? TypingState::Complete : TypingState::Refused);
            EXPECT_EQ(time.hour, isTime ? hour : 0);
            EXPECT_EQ(time.minute, isTime ? std::optional(minute) : std::nullopt);
        }
    }
}

TEST(TypedTimeStateTest, WhatMayBecomeATimeIsUnfinished) {
    for (const auto& text :
         {u"1"_s, u"23"_s, u"130"_s, u"14:"_s, u"14:0"_s, u"9 "_s, u"2:05 in the"_s})
        EXPECT_EQ(read(text).state, TypingState::Unfinished) << text.toStdString();
    EXPECT_EQ(read(u"午"_s, "ja_JP").state, TypingState::Unfinished);
    EXPECT_EQ(read(u"午後2:"_s, "ja_JP").state, TypingState::Unfinished);
}

TEST(TypedTimeStateTest, NonsenseIsRefused) {
    for (const auto& text :
         {u"x"_s,
          u"24:00"_s,
          u"24"_s,
          u"14:60"_s,
          u"14:6"_s,
          u"14:5 pm"_s,
          u"2400"_s,
          u"1460"_s,
          u"260"_s,
          u"14050"_s,
          u"14:055"_s,
          u"-1:05"_s,
          u"2:05 xm"_s,
          u"13:05 am"_s,
          u"0:05 pm"_s,
          u"pm 2:05 pm"_s,
          u"2:05:"_s,
          QString(1'000'000, u'1')})
        EXPECT_EQ(read(text).state, TypingState::Refused) << text.left(20).toStdString();
}

struct Cycle {
    const char* locale;
    HourCycle cycle;
};

class HourCycleTest : public testing::TestWithParam<Cycle> {};

TEST_P(HourCycleTest, IsThatOfTheShortTime) {
    EXPECT_EQ(hourCycle(UserLocale::named(QString::fromUtf8(GetParam().locale))), GetParam().cycle);
}

// By the short time patterns of CLDR's files.
INSTANTIATE_TEST_SUITE_P(
    ,
    HourCycleTest,
    testing::Values(
        Cycle{"en_US", HourCycle::Twelve},
        Cycle{"ar_EG", HourCycle::Twelve},
        Cycle{"hi_IN", HourCycle::Twelve},
        Cycle{"ko_KR", HourCycle::Twelve},
        Cycle{"en_GB", HourCycle::TwentyFour},
        Cycle{"de_DE", HourCycle::TwentyFour},
        Cycle{"fr_FR", HourCycle::TwentyFour},
        Cycle{"fr_CA", HourCycle::TwentyFour},
        Cycle{"es_ES", HourCycle::TwentyFour},
        Cycle{"he_IL", HourCycle::TwentyFour},
        Cycle{"ja_JP", HourCycle::TwentyFour},
        Cycle{"fa_IR", HourCycle::TwentyFour},
        Cycle{"th_TH", HourCycle::TwentyFour},
        Cycle{"sv_SE", HourCycle::TwentyFour},
        Cycle{"zh_CN", HourCycle::TwentyFour}));

} // namespace
} // namespace quorvane
