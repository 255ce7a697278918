// SPDX-License-Identifier: MIT
#include "HourReader.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

struct Row {
    QString text;
    TypingState twelve;
    TypingState twentyFour;
};

constexpr auto complete = TypingState::Complete;
constexpr auto unfinished = TypingState::Unfinished;
constexpr auto refused = TypingState::Refused;

class HourReaderTest : public testing::TestWithParam<Row> {};

TEST_P(HourReaderTest, TellsHoursFromBeginningsAndNonsense) {
    const auto& [text, twelve, twentyFour] = GetParam();
    const HourReader american(UserLocale::named(u"en_US"_s));
    const HourReader german(UserLocale::named(u"de_DE"_s));
    EXPECT_EQ(american.read(text).state, twelve) << text.toStdString();
    EXPECT_EQ(german.read(text).state, twentyFour) << text.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    ,
    HourReaderTest,
    testing::Values(
        Row{u""_s, unfinished, unfinished},
        Row{u"0"_s, unfinished, complete},
        Row{u"1"_s, complete, complete},
        Row{u"07"_s, complete, complete},
        Row{u"12"_s, complete, complete},
        Row{u"13"_s, unfinished, complete},
        Row{u"23"_s, unfinished, complete},
        Row{u"24"_s, refused, refused},
        Row{u"99"_s, refused, refused},
        Row{u"007"_s, complete, complete},
        Row{u"130"_s, unfinished, unfinished},
        Row{u"190"_s, unfinished, unfinished},
        Row{u"260"_s, refused, refused},
        Row{u"1405"_s, complete, complete},
        Row{u"0000"_s, complete, complete},
        Row{u"2400"_s, refused, refused},
        Row{u"0060"_s, refused, refused},
        Row{u"14055"_s, refused, refused},
        Row{u"00007"_s, complete, complete},
        Row{u"+"_s, unfinished, unfinished},
        Row{u"+7"_s, complete, complete},
        Row{u"-3"_s, refused, refused},
        Row{u"-0"_s, refused, complete},
        Row{u"3 "_s, unfinished, unfinished},
        Row{u"3 pm"_s, complete, complete},
        Row{u"3 x"_s, refused, refused},
        Row{u"14:05"_s, complete, complete},
        Row{u"14:05:30"_s, refused, refused}));

TEST(HourReaderTimeTest, OnlyWhatIsMoreThanANumberIsATime) {
    const HourReader reader(UserLocale::named(u"en_US"_s));
    EXPECT_EQ(reader.read(u"7"_s).time, std::nullopt);
    EXPECT_EQ(reader.read(u"1405"_s).time.value().minute, 5);
    EXPECT_EQ(reader.read(u"7 pm"_s).time.value().hour, 19);
    EXPECT_EQ(reader.read(u"7 pm"_s).time.value().minute, std::nullopt);
}

TEST(MinuteReaderTest, TellsMinutesFromBeginningsAndNonsense) {
    for (const auto& text : {u"0"_s, u"00"_s, u"5"_s, u"59"_s, u"+7"_s, u"059"_s, u"٥٩"_s})
        EXPECT_EQ(readMinute(text), complete) << text.toStdString();
    for (const auto& text : {u""_s, u"+"_s, u"-"_s})
        EXPECT_EQ(readMinute(text), unfinished) << text.toStdString();
    for (const auto& text : {u"60"_s, u"-1"_s, u"x"_s, u"5 "_s, u"5:"_s})
        EXPECT_EQ(readMinute(text), refused) << text.toStdString();
}

} // namespace
} // namespace quorvane
