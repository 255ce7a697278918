// SPDX-License-Identifier: MIT
#include "ZoneRules.h"

#include <QFile>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

// Offsets of whole zones are held against another program's in ZoneDatabaseTest.

TEST(ZoneRules, FileThatIsCutOffOrNoneAtAllGivesNone) {
    QFile file(u"/usr/share/zoneinfo/America/New_York"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto bytes = file.readAll();
    const auto footer = bytes.lastIndexOf("\nEST5EDT,M3.2.0,M11.1.0\n");
    ASSERT_GT(footer, 0);
    for (qsizetype size = 0; size < footer; ++size)
        EXPECT_FALSE(ZoneRules::parse(bytes.first(size)).has_value()) << size;
    EXPECT_TRUE(ZoneRules::parse(bytes).has_value());
    EXPECT_FALSE(ZoneRules::parse(QByteArray(5000, '\xff')).has_value());
    auto counts = bytes;
    counts.replace(20, 24, QByteArray(24, '\xff'));
    EXPECT_FALSE(ZoneRules::parse(counts).has_value());
}

int secondsAt(const char* rule, long long seconds) {
    return PosixRule::parse(rule).value().at(seconds).seconds;
}

// Instants by "date -u -d ... +%s".
TEST(PosixRule, HoldsForEveryFormOfTheText) {
    constexpr long long january = 1705320000; // 2024-01-15T12:00:00Z
    constexpr long long july = 1721044800;    // 2024-07-15T12:00:00Z
    EXPECT_EQ(secondsAt("JST-9", july), 9 * 3600);
    EXPECT_EQ(secondsAt("<-0330>3:30", july), -(3 * 3600 + 30 * 60));
    EXPECT_EQ(secondsAt("EST5EDT,M3.2.0,M11.1.0", january), -5 * 3600);
    EXPECT_EQ(secondsAt("EST5EDT,M3.2.0,M11.1.0", july), -4 * 3600);
    EXPECT_EQ(secondsAt("AEST-10AEDT,M10.1.0,M4.1.0/3", january), 11 * 3600);
    EXPECT_EQ(secondsAt("AEST-10AEDT,M10.1.0,M4.1.0/3", july), 10 * 3600);
    EXPECT_EQ(secondsAt("<+1030>-10:30<+11>-11,M10.1.0,M4.1.0", january), 11 * 3600);
    // Daylight time that is less than standard time, and all year long (RFC 9636, 3.3.1).
    EXPECT_EQ(secondsAt("IST-1GMT0,M10.5.0,M3.5.0/1", january), 0);
    EXPECT_EQ(secondsAt("IST-1GMT0,M10.5.0,M3.5.0/1", july), 3600);
    EXPECT_EQ(secondsAt("XXX3EDT4,0/0,J365/23", january), -4 * 3600);
    EXPECT_EQ(secondsAt("XXX3EDT4,0/0,J365/23", july), -4 * 3600);
    EXPECT_EQ(secondsAt("EST5EDT,J60/0,J300", 1709251200 + 5 * 3600), -4 * 3600); // March 1, 2024
    EXPECT_EQ(secondsAt("EST5EDT,J60/0,J300", 1709251200 + 5 * 3600 - 1), -5 * 3600);
    EXPECT_EQ(secondsAt("EST5EDT,59/0,300", 1709164800 + 5 * 3600), -4 * 3600); // February 29
}

TEST(PosixRule, ChangesAtTheSecondItself) {
    constexpr long long march10 = 1710054000;   // 2024-03-10T07:00:00Z
    constexpr long long november3 = 1730613600; // 2024-11-03T06:00:00Z
    const char* rule = "EST5EDT,M3.2.0,M11.1.0";
    EXPECT_EQ(secondsAt(rule, march10 - 1), -5 * 3600);
    EXPECT_EQ(secondsAt(rule, march10), -4 * 3600);
    EXPECT_EQ(secondsAt(rule, november3 - 1), -4 * 3600);
    EXPECT_EQ(secondsAt(rule, november3), -5 * 3600);
}

TEST(PosixRule, AnyOtherTextIsNone) {
    for (const char* text :
         {"",
          "EST",
          "ES5",
          "EST5EDT",
          "EST5EDT,M3.2.0",
          "EST5EDT,M3.2.0,M11.1.0,",
          "EST5EDT,M13.2.0,M11.1.0",
          "EST5EDT,M0.2.0,M11.1.0",
          "EST5EDT,M3.6.0,M11.1.0",
          "EST5EDT,M3.2.7,M11.1.0",
          "EST5EDT,J366,J400",
          "<+03-3",
          "EST5:",
          "EST+-5",
          "\xc3\x89ST5"})
        EXPECT_FALSE(PosixRule::parse(text).has_value()) << text;
}

} // namespace
} // namespace quorvane
