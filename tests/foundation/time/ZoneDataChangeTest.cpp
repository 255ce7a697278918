// SPDX-License-Identifier: MIT
#include <time/ZoneDatabase.h>

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

const fs::path systemData = "/usr/share/zoneinfo";
constexpr Instant winter{1705320000}; // 2024-01-15T12:00:00Z

/// A folder of zone data, made of the system's files.
class ZoneDataChangeTest : public testing::Test {
protected:
    [[nodiscard]] QString directory() const { return m_folder.path(); }

    [[nodiscard]] fs::path path(const std::string& name) const {
        return m_folder.path().toStdString() + '/' + name;
    }

    /// The data of `source` under another name, as an update puts them there: renamed over the old.
    void install(const std::string& name, const std::string& source) const {
        fs::create_directories(path(name).parent_path());
        fs::copy_file(systemData / source, path("new"), fs::copy_options::overwrite_existing);
        fs::rename(path("new"), path(name));
    }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(path(name)) << text;
    }

    /// As if it had been written an hour later: the clocks of file systems are coarse.
    void touch(const std::string& name) const {
        fs::last_write_time(path(name), fs::last_write_time(path(name)) + std::chrono::hours(1));
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(ZoneDataChangeTest, NewDataAreInForceInZonesThatWereHandedOut) {
    write("tzdata.zi", "Z Europe/Paris 1 - CET\n");
    write("zone.tab", "FR\t+4852+00220\tEurope/Paris\n");
    install("Europe/Paris", "Europe/Paris");
    ZoneDatabase zones(directory());
    const auto paris = zones.zone(u"Europe/Paris"_s).value();
    EXPECT_EQ(paris.secondsFromGMT(winter), 3600);
    EXPECT_FALSE(zones.refresh());

    install("Europe/Paris", "Asia/Tokyo");
    write("tzdata.zi", "Z Europe/Paris 9 - JST\nZ Europe/Monaco 1 - CET\n");
    install("Europe/Monaco", "Europe/Monaco");
    touch("tzdata.zi");
    EXPECT_EQ(paris.secondsFromGMT(winter), 3600);
    EXPECT_FALSE(zones.isKnown(u"Europe/Monaco"_s));
    EXPECT_TRUE(zones.refresh());
    EXPECT_EQ(paris.secondsFromGMT(winter), 9 * 3600);
    EXPECT_TRUE(zones.zone(u"Europe/Monaco"_s).has_value());
    EXPECT_FALSE(zones.refresh());
}

TEST_F(ZoneDataChangeTest, ZoneThatIsGoneGoesOnAsItWas) {
    install("Europe/Paris", "Europe/Paris");
    ZoneDatabase zones(directory());
    const auto paris = zones.zone(u"Europe/Paris"_s).value();
    fs::remove_all(path("Europe"));
    EXPECT_TRUE(zones.refresh());
    EXPECT_FALSE(zones.zone(u"Europe/Paris"_s).has_value());
    EXPECT_EQ(paris.secondsFromGMT(winter), 3600);
}

TEST_F(ZoneDataChangeTest, DataThatComeLaterAreFound) {
    ZoneDatabase zones(directory());
    EXPECT_FALSE(zones.hasData());
    install("Europe/Paris", "Europe/Paris");
    EXPECT_TRUE(zones.refresh());
    EXPECT_TRUE(zones.hasData());
    EXPECT_TRUE(zones.zone(u"Europe/Paris"_s).has_value());
}

TEST_F(ZoneDataChangeTest, WithoutAnIndexTheFilesAreTheIndex) {
    for (const char* name : {"Europe/Paris", "America/New_York", "Etc/GMT+12"})
        install(name, name);
    install("EST5EDT", "America/New_York");
    install("posix/Asia/Tokyo", "Asia/Tokyo");
    fs::create_directory(path("US"));
    fs::create_symlink("../America/New_York", path("US/Eastern"));
    write("leapseconds", "# no zone\n");
    const ZoneDatabase zones(directory());
    EXPECT_TRUE(zones.hasData());
    ASSERT_TRUE(zones.zone(u"US/Eastern"_s).has_value());
    EXPECT_EQ(zones.zone(u"US/Eastern"_s)->secondsFromGMT(winter), -5 * 3600);
    EXPECT_EQ(zones.listedName(u"US/Eastern"_s), u"America/New_York"_s);
    EXPECT_TRUE(zones.isKnown(u"EST5EDT"_s));
    EXPECT_FALSE(zones.isKnown(u"posix/Asia/Tokyo"_s));
    EXPECT_FALSE(zones.isKnown(u"leapseconds"_s));
    const QStringList places{u"America/New_York"_s, u"Europe/Paris"_s};
    EXPECT_EQ(zones.zonesByCountry(), places);
    EXPECT_EQ(zones.listedZones(), (places + QStringList{u"UTC"_s, u"Etc/GMT+12"_s}));
}

TEST_F(ZoneDataChangeTest, DirectoryIsThatOfTheVariableIfItIsThere) {
    const auto folderFor = [](const std::optional<QString>& value) {
        return zoneDirectory([&value](const char* name) {
            return qstrcmp(name, "TZDIR") == 0 ? value : std::nullopt;
        });
    };
    EXPECT_EQ(folderFor(directory()), directory());
    for (const auto& value :
         {std::optional<QString>(), std::optional(u""_s), std::optional(directory() + u"/no"_s)})
        EXPECT_EQ(folderFor(value), u"/usr/share/zoneinfo"_s);
}

TEST(ListedName, IsWhereTheLinksLeadFromAnOldName) {
    const ZoneDatabase zones;
    EXPECT_EQ(zones.listedName(u"US/Eastern"_s), u"America/New_York"_s);
    EXPECT_EQ(zones.listedName(u"Asia/Calcutta"_s), u"Asia/Kolkata"_s);
    EXPECT_EQ(zones.listedName(u"Europe/Kiev"_s), u"Europe/Kyiv"_s);
    for (const auto& utc : {u"Etc/UTC"_s, u"Etc/UCT"_s, u"UCT"_s, u"Zulu"_s, u"Universal"_s})
        EXPECT_EQ(zones.listedName(utc), u"UTC"_s) << utc.toStdString();
    for (const auto& same :
         {u"UTC"_s, u"Etc/GMT+12"_s, u"Europe/Bratislava"_s, u"Etc/GMT"_s, u"Foo/Bar"_s, u""_s})
        EXPECT_EQ(zones.listedName(same), same) << same.toStdString();
}

TEST(ListedName, NamesOfOneZoneAreNotDoubled) {
    const ZoneDatabase zones;
    EXPECT_EQ(
        zones.listedNames(
            {u"US/Eastern"_s,
             u"Asia/Tokyo"_s,
             u"America/New_York"_s,
             u"Asia/Calcutta"_s,
             u"Foo/Bar"_s}),
        (QStringList{u"Asia/Tokyo"_s, u"America/New_York"_s, u"Asia/Kolkata"_s, u"Foo/Bar"_s}));
    EXPECT_EQ(zones.listedNames({u"UTC"_s, u"UTC"_s}), (QStringList{u"UTC"_s, u"UTC"_s}));
    EXPECT_EQ(zones.listedNames({u"US/Eastern"_s, u"US/Eastern"_s}).size(), 1);
}

} // namespace
} // namespace quorvane
