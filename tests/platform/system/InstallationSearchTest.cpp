// SPDX-License-Identifier: MIT
#include <platform_system/InstallationSearch.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Kind = Installation::Kind;

class InstallationSearchTest : public testing::Test {
protected:
    void write(const QString& name, const QByteArray& content = {}) {
        const auto path = root.filePath(name);
        QDir().mkpath(path.section(u'/', 0, -2));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    Installation found(const QString& program) { return installationOf(program, root.path()); }

    QTemporaryDir root;
};

TEST_F(InstallationSearchTest, PackageManagersFilesTellItsOwn) {
    write(u"var/lib/dpkg/info/quorvane.list"_s, "/.\n/usr\n/usr/bin\n/usr/bin/quorvane\n");
    EXPECT_EQ(found(u"/usr/bin/quorvane"_s).kind, Kind::DebianPackage);
    const auto other = found(u"/usr/local/bin/quorvane"_s);
    EXPECT_EQ(other.kind, Kind::ByHand) << "beside the package";
    EXPECT_EQ(other.folder, u"/usr/local"_s);
}

TEST_F(InstallationSearchTest, SandboxKnowsThatItIsOne) {
    write(u".flatpak-info"_s);
    EXPECT_EQ(found(u"/app/bin/quorvane"_s).kind, Kind::Flatpak);
}

TEST_F(InstallationSearchTest, BuildFolderIsToldByItsCache) {
    write(u"build/CMakeCache.txt"_s);
    const auto build = found(root.filePath(u"build/quorvane"_s));
    EXPECT_EQ(build.kind, Kind::BuildFolder);
    EXPECT_EQ(build.folder, root.filePath(u"build"_s));
}

TEST_F(InstallationSearchTest, AnythingElseIsWhereSomebodyPutIt) {
    EXPECT_EQ(found(u"/opt/q/bin/quorvane"_s).folder, u"/opt/q"_s);
    EXPECT_EQ(found(u"/home/someone/quorvane"_s).folder, u"/home/someone"_s);
    EXPECT_FALSE(found(u"/opt/q/bin/quorvane"_s).isPackage());
}

TEST_F(InstallationSearchTest, DayOfTheBuildIsKnown) {
    EXPECT_TRUE(found(u"/opt/q/bin/quorvane"_s).built.isValid());
}

} // namespace
} // namespace quorvane
