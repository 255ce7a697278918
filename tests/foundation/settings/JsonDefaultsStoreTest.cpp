// SPDX-License-Identifier: MIT
#include <settings/JsonDefaultsStore.h>
#include <testing/ImmediateSettingsWriter.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <limits>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// A store whose file holds {"key": VALUE}.
class JsonDefaultsStoreTest : public testing::Test {
protected:
    [[nodiscard]] JsonDefaultsStore storeWith(const QByteArray& value) {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("{\"key\": " + value + "}");
        file.close();
        return reopened();
    }

    [[nodiscard]] JsonDefaultsStore reopened() { return {path(), m_writer}; }

    const QString key = u"key"_s;

private:
    [[nodiscard]] QString path() const { return m_folder.filePath(u"defaults.json"_s); }

    QTemporaryDir m_folder;
    ImmediateSettingsWriter m_writer;
};

TEST_F(JsonDefaultsStoreTest, AbsentKeyHasNoValueOfAnyType) {
    const auto store = reopened();
    EXPECT_FALSE(store.hasValue(key));
    EXPECT_FALSE(store.boolForKey(key));
    EXPECT_EQ(store.integerForKey(key), std::nullopt);
    EXPECT_EQ(store.stringForKey(key), std::nullopt);
    EXPECT_EQ(store.stringArrayForKey(key), std::nullopt);
}

TEST_F(JsonDefaultsStoreTest, BoolIsReadFromBoolNumberAndText) {
    for (const char* value :
         {"true",
          "1",
          "-3",
          "0.5",
          "1e300",
          R"("YES")",
          R"("yes")",
          R"("true")",
          R"("True")",
          R"("1")"})
        EXPECT_TRUE(storeWith(value).boolForKey(key)) << value;
    for (const char* value :
         {"false",
          "0",
          "0.0",
          R"("NO")",
          R"("no")",
          R"("false")",
          R"("0")",
          R"("")",
          R"("maybe")",
          R"(" yes")",
          "null",
          "[true]",
          R"({"a": true})"})
        EXPECT_FALSE(storeWith(value).boolForKey(key)) << value;
}

TEST_F(JsonDefaultsStoreTest, ArrayObjectAndNullCountAsAbsent) {
    for (const char* value : {"null", "[]", "[1]", "{}", R"({"a": 1})"})
        EXPECT_FALSE(storeWith(value).hasValue(key)) << value;
    for (const char* value : {"false", "0", R"("")"})
        EXPECT_TRUE(storeWith(value).hasValue(key)) << value;
}

TEST_F(JsonDefaultsStoreTest, IntegerIsReadExactlyFromNumberAndText) {
    constexpr auto greatest = std::numeric_limits<qint64>::max();
    constexpr auto least = std::numeric_limits<qint64>::min();
    const std::vector<std::pair<const char*, qint64>> table{
        {"0", 0},
        {"-1", -1},
        {"2.5", 2},
        {"-2.5", -2},
        {"-0.9", 0},
        {"9007199254740993", 9007199254740993},
        {"9223372036854775807", greatest},
        {"-9223372036854775808", least},
        {"9223372036854775808", greatest},
        {"18446744073709551616", greatest},
        {"-9223372036854775809", least},
        {"1e300", greatest},
        {"-1e300", least},
        {"1e3", 1000},
        {R"("42")", 42},
        {R"(" -7 ")", -7},
        {R"("+7")", 7},
        {R"("2.9")", 2},
        {R"("1e3")", 1000},
        {R"("9007199254740993")", 9007199254740993},
        {R"("9223372036854775807")", greatest},
        {R"("9223372036854775808")", greatest},
        {R"("-1e999")", least},
        {R"("1e999")", greatest},
    };
    for (const auto& [value, expected] : table)
        EXPECT_EQ(storeWith(value).integerForKey(key), expected) << value;
}

TEST_F(JsonDefaultsStoreTest, WhatIsNoNumberGivesNoInteger) {
    for (const char* value :
         {"true",
          "false",
          "null",
          "[1]",
          "{}",
          R"("")",
          R"("D")",
          R"("12abc")",
          R"("0x10")",
          R"("inf")",
          R"("nan")",
          R"("1,000")",
          R"("٢")",
          R"("- 1")",
          R"(".")"})
        EXPECT_EQ(storeWith(value).integerForKey(key), std::nullopt) << value;
}

TEST_F(JsonDefaultsStoreTest, TextIsReadFromTextAndNumber) {
    EXPECT_EQ(storeWith(R"("Popover")").stringForKey(key), u"Popover"_s);
    EXPECT_EQ(storeWith("5").stringForKey(key), u"5"_s);
    EXPECT_EQ(storeWith("2.5").stringForKey(key), u"2.5"_s);
    for (const char* value : {"true", "null", "[]", "{}"})
        EXPECT_EQ(storeWith(value).stringForKey(key), std::nullopt) << value;
}

TEST_F(JsonDefaultsStoreTest, ArrayIsReadOnlyIfAllElementsAreTexts) {
    EXPECT_EQ(storeWith("[]").stringArrayForKey(key), QStringList());
    EXPECT_EQ(
        storeWith(R"(["b", "", "a", "b"])").stringArrayForKey(key),
        (QStringList{u"b"_s, u""_s, u"a"_s, u"b"_s}));
    for (const char* value :
         {R"(["Europe/Paris", 5])", "[null]", R"([["a"]])", R"("a")", "{}", "null"})
        EXPECT_EQ(storeWith(value).stringArrayForKey(key), std::nullopt) << value;
}

TEST_F(JsonDefaultsStoreTest, WhatIsWrittenIsReadByTheNextRun) {
    {
        auto store = reopened();
        store.setBool(u"bool"_s, true);
        store.setInteger(u"integer"_s, std::numeric_limits<qint64>::max());
        store.setString(u"text"_s, u"ü\"\n\u2026"_s);
        store.setStringArray(u"texts"_s, {u"a"_s, u"b"_s});
    }
    const auto store = reopened();
    EXPECT_TRUE(store.boolForKey(u"bool"_s));
    EXPECT_EQ(store.integerForKey(u"integer"_s), std::numeric_limits<qint64>::max());
    EXPECT_EQ(store.stringForKey(u"text"_s), u"ü\"\n\u2026"_s);
    EXPECT_EQ(store.stringArrayForKey(u"texts"_s), (QStringList{u"a"_s, u"b"_s}));
}

} // namespace
} // namespace quorvane
