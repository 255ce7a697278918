// SPDX-License-Identifier: MIT
#include <time/UserLocale.h>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

using Variables = std::map<std::string, QString>;

std::string nameFrom(const Variables& variables) {
    const auto locale =
        UserLocale::fromEnvironment([&](const char* name) -> std::optional<QString> {
            const auto found = variables.find(name);
            return found == variables.end() ? std::nullopt : std::optional(found->second);
        });
    return locale.icuLocale().getName();
}

TEST(UserLocale, FirstVariableThatIsNotEmptyDecides) {
    EXPECT_EQ(
        nameFrom({{"LC_ALL", u"fr_FR"_s}, {"LC_TIME", u"de_DE"_s}, {"LANG", u"ja_JP"_s}}), "fr_FR");
    EXPECT_EQ(
        nameFrom({{"LC_ALL", u""_s}, {"LC_TIME", u"de_DE"_s}, {"LANG", u"ja_JP"_s}}), "de_DE");
    EXPECT_EQ(nameFrom({{"LC_TIME", u""_s}, {"LANG", u"ja_JP"_s}}), "ja_JP");
    EXPECT_EQ(nameFrom({{"LC_ALL", u"C"_s}, {"LC_TIME", u"de_DE"_s}}), "en_US");
    EXPECT_EQ(nameFrom({{"LC_MESSAGES", u"de_DE"_s}, {"LANGUAGE", u"de"_s}}), "en_US");
}

TEST(UserLocale, NamesOfTheCLibraryAreMappedToIcus) {
    const std::vector<std::pair<QString, std::string>> table{
        {u"de_DE.UTF-8"_s, "de_DE"},
        {u"de_AT@euro"_s, "de_AT"},
        {u"de_AT.ISO-8859-15@euro"_s, "de_AT"},
        {u"sr_RS.UTF-8@latin"_s, "sr_Latn_RS"},
        {u"sr_RS@latin"_s, "sr_Latn_RS"},
        {u"uz_UZ.UTF-8@cyrillic"_s, "uz_Cyrl_UZ"},
        {u"ks_IN@devanagari"_s, "ks_Deva_IN"},
        {u"ca_ES@valencia"_s, "ca_ES"},
        {u"fr"_s, "fr"},
        {u"th_TH.UTF-8"_s, "th_TH"},
        {u"C"_s, "en_US"},
        {u"C.UTF-8"_s, "en_US"},
        {u"POSIX"_s, "en_US"},
        {u"xx_YY.UTF-8"_s, "en_US"},
        {u"@euro"_s, "en_US"},
        {u"."_s, "en_US"},
        {u"%%%"_s, "en_US"},
    };
    for (const auto& [posix, icuName] : table)
        EXPECT_EQ(nameFrom({{"LANG", posix}}), icuName) << posix.toStdString();
}

TEST(UserLocale, WithoutVariablesIsAmericanEnglish) {
    EXPECT_EQ(nameFrom({}), "en_US");
}

TEST(UserLocale, EveryLocaleOfIcuIsKnown) {
    int32_t count = 0;
    const auto* locales = icu::Locale::getAvailableLocales(count);
    for (int32_t i = 0; i < count; ++i) {
        const auto name = QString::fromUtf8(locales[i].getName());
        EXPECT_EQ(UserLocale::named(name).icuLocale(), locales[i]) << locales[i].getName();
    }
}

TEST(UserLocale, KnownIndependentlyOfTheProcessDefault) {
    const icu::Locale before;
    auto status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale("de"), status);
    EXPECT_EQ(UserLocale::named(u"de"_s).icuLocale(), icu::Locale("de"));
    EXPECT_EQ(UserLocale::named(u"xx"_s).icuLocale(), icu::Locale::getUS());
    icu::Locale::setDefault(before, status);
}

} // namespace
} // namespace quorvane
