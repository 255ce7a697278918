// SPDX-License-Identifier: MIT
#include <time/SystemCurrentZone.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

/// A file system of its own with an /etc, and the real zone data.
class SystemCurrentZoneTest : public testing::Test {
protected:
    SystemCurrentZoneTest() { fs::create_directories(m_root / "etc"); }

    [[nodiscard]] SystemCurrentZone currentZone() const {
        const Environment environment = [this](const char* name) {
            return qstrcmp(name, "TZ") == 0 ? m_variable : std::nullopt;
        };
        return {m_zones, environment, m_root};
    }

    [[nodiscard]] std::string current() const {
        return currentZone().current().identifier().toStdString();
    }

    /// Asked of one object.
    [[nodiscard]] std::string currentThrice() const {
        const auto zone = currentZone();
        for (int times = 0; times < 2; ++times)
            static_cast<void>(zone.current());
        return zone.current().identifier().toStdString();
    }

    void setVariable(const QString& value) { m_variable = value; }

    void link(const fs::path& path, const fs::path& target) const {
        fs::remove(m_root / path);
        fs::create_directories((m_root / path).parent_path());
        fs::create_symlink(target, m_root / path);
    }

    void copyZone(const std::string& identifier) const {
        fs::copy_file(
            fs::path("/usr/share/zoneinfo") / identifier,
            m_root / "etc/localtime",
            fs::copy_options::overwrite_existing);
    }

    void write(const fs::path& path, const std::string& text) const {
        std::ofstream(m_root / path) << text;
    }

private:
    QTemporaryDir m_folder;
    fs::path m_root = m_folder.path().toStdString();
    ZoneDatabase m_zones;
    std::optional<QString> m_variable;
};

TEST_F(SystemCurrentZoneTest, IsTheTargetOfTheLink) {
    link("etc/localtime", "/usr/share/zoneinfo/America/Argentina/Ushuaia");
    EXPECT_EQ(current(), "America/Argentina/Ushuaia");
    link("etc/localtime", "../usr/share/zoneinfo/Europe/Paris");
    EXPECT_EQ(current(), "Europe/Paris");
}

TEST_F(SystemCurrentZoneTest, FollowsAChangeWhileItRuns) {
    link("etc/localtime", "/usr/share/zoneinfo/Asia/Tokyo");
    EXPECT_EQ(current(), "Asia/Tokyo");
    link("etc/localtime", "/usr/share/zoneinfo/Asia/Seoul");
    EXPECT_EQ(current(), "Asia/Seoul");
}

TEST_F(SystemCurrentZoneTest, OldNameIsTheListedZoneThatItLeadsTo) {
    link("etc/localtime", "/usr/share/zoneinfo/US/Pacific");
    EXPECT_EQ(current(), "America/Los_Angeles");
    link("etc/localtime", "/usr/share/zoneinfo/Asia/Calcutta");
    EXPECT_EQ(current(), "Asia/Kolkata");
}

TEST_F(SystemCurrentZoneTest, KeepsTheChosenNameOfAListedZoneThatIsALink) {
    link("etc/localtime", "/usr/share/zoneinfo/Europe/Bratislava");
    EXPECT_EQ(current(), "Europe/Bratislava");
}

TEST_F(SystemCurrentZoneTest, WhatIsNoZoneIsReportedOnce) {
    setVariable(u"Mars/Olympus"_s);
    testing::internal::CaptureStderr();
    EXPECT_EQ(currentThrice(), "UTC");
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "quorvane: \"Mars/Olympus\" is no time zone of this system; times are in UTC\n");
    setVariable(u""_s);
    testing::internal::CaptureStderr();
    EXPECT_EQ(currentThrice(), "UTC");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SystemCurrentZoneTest, FollowsLinksOutsideTheDatabase) {
    link("etc/localtime", "alternatives/localtime");
    link("etc/alternatives/localtime", "/etc/zone");
    link("etc/zone", "/usr/share/zoneinfo/Europe/Rome");
    EXPECT_EQ(current(), "Europe/Rome");
}

TEST_F(SystemCurrentZoneTest, LinksInACircleAreUtc) {
    link("etc/localtime", "/etc/other");
    link("etc/other", "/etc/localtime");
    EXPECT_EQ(current(), "UTC");
}

TEST_F(SystemCurrentZoneTest, StripsTheVariantsOfTheDatabase) {
    link("etc/localtime", "/usr/share/zoneinfo/posix/Asia/Kathmandu");
    EXPECT_EQ(current(), "Asia/Kathmandu");
    link("etc/localtime", "/usr/share/zoneinfo/right/Asia/Kathmandu");
    EXPECT_EQ(current(), "Asia/Kathmandu");
}

TEST_F(SystemCurrentZoneTest, NothingThereIsUtc) {
    EXPECT_EQ(current(), "UTC");
    write("etc/timezone", "Europe/Paris\n");
    EXPECT_EQ(current(), "UTC");
}

TEST_F(SystemCurrentZoneTest, LinkToNoZoneIsUtc) {
    link("etc/localtime", "/usr/share/zoneinfo/Moon/Tycho");
    EXPECT_EQ(current(), "UTC");
    link("etc/localtime", "/usr/share/zoneinfo/../zoneinfo/Europe");
    EXPECT_EQ(current(), "UTC");
}

TEST_F(SystemCurrentZoneTest, OtherNamesOfUtcAreUtc) {
    for (const char* name :
         {"UTC", "Etc/UTC", "Etc/UCT", "Etc/Zulu", "Etc/Universal", "UCT", "Zulu", "Universal"}) {
        link("etc/localtime", std::string("/usr/share/zoneinfo/") + name);
        EXPECT_EQ(current(), "UTC") << name;
    }
    link("etc/localtime", "/usr/share/zoneinfo/Etc/GMT");
    EXPECT_EQ(current(), "Etc/GMT");
}

TEST_F(SystemCurrentZoneTest, CopyIsWhatTheNameFileSaysIfItsBytesAgree) {
    copyZone("Asia/Kolkata");
    write("etc/timezone", "Asia/Kolkata\n");
    EXPECT_EQ(current(), "Asia/Kolkata");
    write("etc/timezone", "Asia/Calcutta\n");
    EXPECT_EQ(current(), "Asia/Kolkata");
}

TEST_F(SystemCurrentZoneTest, CopyWithAStaleNameIsTheFirstZoneWithItsBytes) {
    copyZone("Asia/Kolkata");
    write("etc/timezone", "Europe/Paris\n");
    EXPECT_EQ(current(), "Asia/Kolkata");
    write("etc/timezone", "../../etc/localtime");
    EXPECT_EQ(current(), "Asia/Kolkata");
}

TEST_F(SystemCurrentZoneTest, CopyWithoutANameIsTheFirstZoneWithItsBytes) {
    copyZone("Asia/Kolkata");
    EXPECT_EQ(current(), "Asia/Kolkata");
    copyZone("UTC"); // in no country
    EXPECT_EQ(current(), "UTC");
}

TEST_F(SystemCurrentZoneTest, BytesOfNoZoneAreUtc) {
    write("etc/localtime", "not a zone");
    EXPECT_EQ(current(), "UTC");
}

TEST_F(SystemCurrentZoneTest, VariableGoesFirst) {
    link("etc/localtime", "/usr/share/zoneinfo/Asia/Tokyo");
    // In Debian 13 it is another name of that zone.
    const std::string eastern =
        QFile::exists(u"/usr/share/zoneinfo/EST5EDT"_s) ? "EST5EDT" : "America/New_York";
    for (const auto& [value, expected] : std::initializer_list<std::pair<QString, std::string>>{
             {u"Europe/Paris"_s, "Europe/Paris"},
             {u":Europe/Paris"_s, "Europe/Paris"},
             {u"posix/Europe/Paris"_s, "Europe/Paris"},
             {u"/usr/share/zoneinfo/Europe/Paris"_s, "Europe/Paris"},
             {u":/usr/share/zoneinfo/right/Europe/Paris"_s, "Europe/Paris"},
             {u"EST5EDT"_s, eastern},
             {u"Etc/UTC"_s, "UTC"},
             {u":/etc/localtime"_s, "Asia/Tokyo"},
             {u"/no/such/file"_s, "UTC"},
             {u"GMT+3"_s, "UTC"},
             {u"europe/paris"_s, "UTC"},
             {u":"_s, "UTC"},
             // The C library reads an empty variable as UTC, not as one that is not set.
             {QString(u""_s), "UTC"},
         }) {
        setVariable(value);
        EXPECT_EQ(current(), expected) << value.toStdString();
    }
}

} // namespace
} // namespace quorvane
