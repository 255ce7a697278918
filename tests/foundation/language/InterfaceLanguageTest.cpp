// SPDX-License-Identifier: MIT
#include <language/InterfaceLanguage.h>
#include <language/LanguagesRead.h>

#include <QCoreApplication>
#include <QMap>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

using Variables = QMap<QByteArray, QString>;

Environment with(const Variables& variables) {
    return [variables](const char* name) {
        const auto found = variables.constFind(name);
        return found == variables.cend() ? std::nullopt : std::optional(*found);
    };
}

TEST(LanguagesRead, AreTheFirstLocaleThatIsSet) {
    EXPECT_EQ(
        languagesRead(with({{"LANG", u"fr_FR.UTF-8"_s}})), (QStringList{u"fr_FR"_s, u"fr"_s}));
    EXPECT_EQ(
        languagesRead(with({{"LC_MESSAGES", u"de_AT.UTF-8@euro"_s}, {"LANG", u"fr_FR.UTF-8"_s}})),
        (QStringList{u"de_AT"_s, u"de"_s}));
    EXPECT_EQ(
        languagesRead(with({{"LC_ALL", u"ja"_s}, {"LC_MESSAGES", u"de"_s}})), QStringList{u"ja"_s});
    EXPECT_EQ(languagesRead(with({{"LC_ALL", {}}, {"LANG", u"es"_s}})), QStringList{u"es"_s});
}

TEST(LanguagesRead, BeginWithTheListOfLanguages) {
    EXPECT_EQ(
        languagesRead(with({{"LANGUAGE", u"nds:de_DE::en"_s}, {"LANG", u"de_AT.UTF-8"_s}})),
        (QStringList{u"nds"_s, u"de_DE"_s, u"de"_s, u"en"_s, u"de_AT"_s}));
}

TEST(LanguagesRead, AreNoneInTheLocaleOfPrograms) {
    for (const auto& locale : {u"C"_s, u"C.UTF-8"_s, u"POSIX"_s}) {
        EXPECT_EQ(languagesRead(with({{"LANGUAGE", u"de"_s}, {"LANG", locale}})), QStringList())
            << locale.toStdString();
    }
    EXPECT_EQ(languagesRead(with({{"LANGUAGE", u"de"_s}})), QStringList());
}

TEST(LanguagesRead, DoNotFollowTheLocaleOfDates) {
    EXPECT_EQ(
        languagesRead(with({{"LC_TIME", u"de_DE.UTF-8"_s}, {"LANG", u"en_GB.UTF-8"_s}})),
        (QStringList{u"en_GB"_s, u"en"_s}));
}

QString quit() {
    return QCoreApplication::translate("quorvane::MainMenu", "Quit Quorvane");
}

TEST(InterfaceLanguage, IsThereAsLongAsItLives) {
    {
        const InterfaceLanguage language(with({{"LANG", u"de_CH.UTF-8"_s}}));
        EXPECT_EQ(language.name(), u"de"_s);
        EXPECT_EQ(quit(), u"Quorvane beenden"_s);
        EXPECT_EQ(language.direction(), Qt::LeftToRight);
    }
    EXPECT_EQ(quit(), u"Quit Quorvane"_s);
}

TEST(InterfaceLanguage, IsTheFirstWishThatThereIsACatalogueFor) {
    const InterfaceLanguage language(
        with({{"LANGUAGE", u"tlh:es_MX:de"_s}, {"LANG", u"ja_JP.UTF-8"_s}}));
    EXPECT_EQ(language.name(), u"es"_s);
}

TEST(InterfaceLanguage, IsEnglishWhereEnglishIsLikedBetter) {
    const InterfaceLanguage language(
        with({{"LANGUAGE", u"en_GB:de"_s}, {"LANG", u"de_DE.UTF-8"_s}}));
    EXPECT_EQ(language.name(), u"en"_s);
    EXPECT_EQ(quit(), u"Quit Quorvane"_s);
}

TEST(InterfaceLanguage, IsEnglishWhereThereIsNoCatalogue) {
    const InterfaceLanguage language(with({{"LANG", u"he_IL.UTF-8"_s}}));
    EXPECT_EQ(language.name(), u"en"_s);
    EXPECT_EQ(language.direction(), Qt::LeftToRight);
}

TEST(InterfaceLanguage, MayBeWrittenFromRightToLeft) {
    const InterfaceLanguage language(with({{"LANG", u"ar_EG.UTF-8"_s}}));
    EXPECT_EQ(language.direction(), Qt::RightToLeft);
}

} // namespace
} // namespace quorvane
