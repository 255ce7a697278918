// SPDX-License-Identifier: MIT
#include "GVariantText.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

// What `gsettings get` and GLib's g_variant_print() write.

TEST(GVariantText, ReadsStrings) {
    EXPECT_EQ(gvarianttext::string(u"'<Super>d'\n"), u"<Super>d"_s);
    EXPECT_EQ(gvarianttext::string(u"\"it's\""), u"it's"_s);
    EXPECT_EQ(gvarianttext::string(u"''"), u""_s);
    EXPECT_EQ(gvarianttext::string(uR"('a\'b\\c\td\u00e9\U0001f600')"), u"a'b\\c\tdé😀"_s);
}

TEST(GVariantText, ReadsArraysOfStrings) {
    EXPECT_EQ(gvarianttext::strings(u"['a', \"b'\"]\n"), (QStringList{u"a"_s, u"b'"_s}));
    EXPECT_EQ(gvarianttext::strings(u"@as []"), QStringList());
    EXPECT_EQ(gvarianttext::strings(u"[]"), QStringList());
    EXPECT_EQ(gvarianttext::strings(u"['']"), QStringList(u""_s));
}

TEST(GVariantText, TakesNothingElse) {
    for (const auto& text :
         {u""_s,
          u"12"_s,
          u"'open"_s,
          u"'a' 'b'"_s,
          u"'\\"_s,
          u"'\\u12"_s,
          u"'\\u12xy'"_s,
          u"'\\Uffffffff'"_s,
          u"['a'"_s}) {
        EXPECT_EQ(gvarianttext::string(text), std::nullopt) << text.toStdString();
    }
    for (const auto& text :
         {u""_s,
          u"'a'"_s,
          u"['a'"_s,
          u"['a' 'b']"_s,
          u"['a',]"_s,
          u"[1]"_s,
          u"[['a']]"_s,
          u"['a'] x"_s,
          u"[,'a']"_s})
        EXPECT_EQ(gvarianttext::strings(text), std::nullopt) << text.toStdString();
}

TEST(GVariantText, WritesWhatItReads) {
    for (const auto& string : {u""_s, u"plain"_s, u"it's \"so\""_s, u"back\\slash"_s, u"é"_s})
        EXPECT_EQ(gvarianttext::string(gvarianttext::fromString(string)), string);
    for (const auto& strings : {QStringList(), QStringList(u"a"_s), QStringList{u"a'"_s, u"b"_s}})
        EXPECT_EQ(gvarianttext::strings(gvarianttext::fromStrings(strings)), strings);
    EXPECT_EQ(gvarianttext::fromString(u"it's"_s), u"'it\\'s'"_s);
    EXPECT_EQ(gvarianttext::fromStrings({u"a"_s, u"b"_s}), u"['a', 'b']"_s);
    EXPECT_EQ(gvarianttext::fromStrings({}), u"@as []"_s);
}

} // namespace
} // namespace quorvane
