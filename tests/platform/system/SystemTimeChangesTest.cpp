// SPDX-License-Identifier: MIT
#include <platform_system/SystemTimeChanges.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <filesystem>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

/// A folder that stands for /etc.
class SystemTimeChangesTest : public testing::Test {
protected:
    SystemTimeChangesTest() {
        link("Europe/Paris");
        m_changes.emplace(zoneFile());
        m_changes->onChanged([this] { ++m_reports; });
    }

    [[nodiscard]] QString zoneFile() const { return m_folder.filePath(u"localtime"_s); }

    /// As the system's tools do it: a new link that takes the old one's place.
    void link(const char* zone) const {
        const fs::path file(zoneFile().toStdString());
        const fs::path next(m_folder.filePath(u"next"_s).toStdString());
        fs::create_symlink(fs::path("/usr/share/zoneinfo") / zone, next);
        fs::rename(next, file);
    }

    void writeOtherFile() const {
        QFile file(m_folder.filePath(u"other"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("other");
    }

    [[nodiscard]] bool hears(int reports) {
        return QTest::qWaitFor([&] { return m_reports >= reports; });
    }

    QTemporaryDir m_folder;
    std::optional<SystemTimeChanges> m_changes;
    int m_reports = 0;
};

TEST_F(SystemTimeChangesTest, TellsOfEachZoneThatIsSet) {
    link("Asia/Tokyo");
    EXPECT_TRUE(hears(1));
    link("America/New_York");
    EXPECT_TRUE(hears(2));
}

TEST_F(SystemTimeChangesTest, TellsOfAZoneThatIsWrittenOverAndOfOneThatComesBack) {
    fs::remove(zoneFile().toStdString());
    EXPECT_TRUE(hears(1));
    QFile::copy(u"/usr/share/zoneinfo/Asia/Tokyo"_s, zoneFile());
    EXPECT_TRUE(hears(2));
    const int before = m_reports;
    QFile file(zoneFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("another zone");
    file.close();
    EXPECT_TRUE(hears(before + 1));
}

TEST_F(SystemTimeChangesTest, OtherFilesOfTheFolderAreOfNoInterest) {
    writeOtherFile();
    // What is told of the one comes before what is told of the other.
    link("Asia/Tokyo");
    EXPECT_TRUE(hears(1));
    EXPECT_EQ(m_reports, 1);
}

TEST_F(SystemTimeChangesTest, NeedsNeitherFileNorHandler) {
    SystemTimeChanges without{QString()};
    SystemTimeChanges missing{m_folder.filePath(u"none/localtime"_s)};
    m_changes->onChanged({});
    link("Asia/Tokyo");
    m_changes->onChanged([this] { ++m_reports; });
    link("America/New_York");
    EXPECT_TRUE(hears(1));
}

} // namespace
} // namespace quorvane
