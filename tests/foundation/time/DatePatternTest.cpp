// SPDX-License-Identifier: MIT
#include <time/DatePattern.h>
#include <time/DateText.h>
#include <time/ZoneDatabase.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<qsizetype> unknown(const QString& pattern) {
    return unknownPatternLetters(pattern);
}

/// The fields of UTS #35, revision 70, by their letters.
const std::map<std::string, QString> fields{
    {"era", u"G"_s},
    {"year", u"yYuUr"_s},
    {"quarter", u"Qq"_s},
    {"month", u"ML"_s},
    {"week", u"wW"_s},
    {"day", u"dDFg"_s},
    {"weekday", u"Eec"_s},
    {"period", u"abB"_s},
    {"hour", u"hHKk"_s},
    {"minute", u"m"_s},
    {"second", u"sSA"_s},
    {"zone", u"zZOvVXx"_s},
};

QString allKnown() {
    QString letters;
    for (const auto& [name, text] : fields)
        letters += text;
    return letters;
}

TEST(DatePattern, LettersOfTheFieldTableAreKnownAndAllOthersAreNot) {
    const auto known = allKnown();
    EXPECT_EQ(known.size(), 37);
    for (const auto letter : u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"_s) {
        EXPECT_EQ(unknown(QString(letter)).empty(), known.contains(letter)) << letter.toLatin1();
        EXPECT_EQ(unknown(QString(4, letter)).size(), known.contains(letter) ? 0U : 4U);
    }
}

// What a formatter makes of them: it ends its text at a letter that it does not know.
TEST(DatePattern, TextEndsAtTheLettersThatAreNotKnown) {
    const auto textOf = [](QChar letter) {
        const auto pattern = u"'<'"_s + letter + u"'>'"_s;
        return patternText(
            {1710021900}, ZoneDatabase::utc(), pattern, UserLocale::named(u"en_US"_s));
    };
    for (const auto letter : u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"_s) {
        if (letter == u'l') // gives nothing and ends nothing
            EXPECT_EQ(textOf(letter), u"<>"_s);
        else
            EXPECT_EQ(textOf(letter).endsWith(u'>'), unknown(QString(letter)).empty())
                << letter.toLatin1();
    }
}

TEST(DatePattern, WhatIsNoLetterOfAsciiIsText) {
    EXPECT_THAT(unknown({}), IsEmpty());
    EXPECT_THAT(unknown(u"yyyy-MM-dd HH:mm zzz"_s), IsEmpty());
    EXPECT_THAT(unknown(u"yyyy年M月d日 12:30 é ж 🙂 [@]`{"_s), IsEmpty());
}

TEST(DatePattern, TextInQuotesHasNoLetters) {
    EXPECT_THAT(unknown(u"h 'o''clock' a"_s), IsEmpty());
    EXPECT_THAT(unknown(u"'tonight'"_s), IsEmpty());
    EXPECT_THAT(unknown(u"HH 'on"_s), IsEmpty());
    EXPECT_THAT(unknown(u"''yy"_s), IsEmpty());
    EXPECT_THAT(unknown(u"''n''"_s), ElementsAre(2));
    EXPECT_THAT(unknown(u"'a'n'b'"_s), ElementsAre(3));
}

TEST(DatePattern, EachUnknownLetterIsFoundWhereItStands) {
    EXPECT_THAT(unknown(u"d of MMMM"_s), ElementsAre(2, 3));
    EXPECT_THAT(unknown(u"🙂n"_s), ElementsAre(2));
    EXPECT_THAT(unknown(u"HH:nn"_s), ElementsAre(3, 4));
}

TEST(DatePattern, WeekBehindAQuotedWIsOneOfIso8601) {
    EXPECT_TRUE(hasIsoWeek(u"YYYY-'W'ww"_s));
    EXPECT_TRUE(hasIsoWeek(u"YYYY'-W'w"_s));
    EXPECT_FALSE(hasIsoWeek(u"YYYY ww"_s));
    EXPECT_FALSE(hasIsoWeek(u"'Week' ww"_s));
    EXPECT_FALSE(hasIsoWeek(u"'W' ww"_s));
    EXPECT_FALSE(hasIsoWeek(u"'W'dd ww"_s));
    EXPECT_FALSE(hasIsoWeek(u"W'ww'"_s));
    EXPECT_FALSE(hasIsoWeek(u"ww"_s));
}

} // namespace
} // namespace quorvane
