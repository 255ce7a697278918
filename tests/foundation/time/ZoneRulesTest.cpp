// SPDX-License-Identifier: MIT
#include "ZoneRules.h"

#include <QFile>
#include <QtEndian>
#include <gtest/gtest.h>

#include <limits>

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

/// A file of the first version with one type and no transitions.
QByteArray fileWithOffset(qint32 seconds) {
    QByteArray file =
        "TZif" + QByteArray(16 + 24, '\0') + QByteArray(6, '\0') + QByteArray("A\0", 2);
    qToBigEndian<quint32>(1, file.data() + 20 + 16); // types
    qToBigEndian<quint32>(2, file.data() + 20 + 20); // characters
    qToBigEndian(seconds, file.data() + 20 + 24);
    return file;
}

// RFC 9636, 3.2: more than 25 hours west and less than 26 east is what readers need to take.
TEST(ZoneRules, OffsetThatNoPlaceCanHaveGivesNone) {
    for (const qint32 seconds : {0, 5 * 3600 + 45 * 60, -89999, 93599})
        EXPECT_TRUE(ZoneRules::parse(fileWithOffset(seconds)).has_value()) << seconds;
    constexpr std::numeric_limits<qint32> limits;
    for (const qint32 seconds : {-90000, 93600, limits.min(), limits.max()})
        EXPECT_FALSE(ZoneRules::parse(fileWithOffset(seconds)).has_value()) << seconds;
}

TEST(PosixRule, OffsetThatNoPlaceCanHaveIsNone) {
    EXPECT_TRUE(PosixRule::parse("AAA24:59:59").has_value());
    EXPECT_TRUE(PosixRule::parse("AAA-25:59:59").has_value());
    EXPECT_TRUE(PosixRule::parse("AAA3BBB2,0/-167,365/167").has_value());
    for (const char* text :
         {"AAA25", "AAA-26", "AAA9999:9999:9999", "AAA0BBB-26,M3.2.0,M11.1.0", "AAA-25BBB,1,9"})
        EXPECT_FALSE(PosixRule::parse(text).has_value()) << text;
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
