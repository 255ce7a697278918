// SPDX-License-Identifier: MIT
#include <settings/DiskFileWriter.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class DiskFileWriterTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    void put(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    [[nodiscard]] QByteArray bytesOf(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    QTemporaryDir m_folder;
    DiskFileWriter m_writer;
};

TEST_F(DiskFileWriterTest, OldFileIsThereUntilTheNewOneIsComplete) {
    put(u"f"_s, "old");
    const auto replacement = m_writer.replace(path(u"f"_s));
    ASSERT_TRUE(replacement->makeFolder());
    ASSERT_TRUE(replacement->open());
    ASSERT_TRUE(replacement->restrictToOwner());
    ASSERT_TRUE(replacement->write("new"));
    EXPECT_EQ(bytesOf(u"f"_s), "old");
    ASSERT_TRUE(replacement->commit());
    EXPECT_EQ(bytesOf(u"f"_s), "new");
}

TEST_F(DiskFileWriterTest, ReplacementThatIsGivenUpLeavesNoTrace) {
    put(u"f"_s, "old");
    {
        const auto replacement = m_writer.replace(path(u"f"_s));
        ASSERT_TRUE(replacement->open());
        ASSERT_TRUE(replacement->write("new"));
    }
    EXPECT_EQ(bytesOf(u"f"_s), "old");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"f"_s});
}

TEST_F(DiskFileWriterTest, FileWhereAFolderShouldBeFails) {
    put(u"f"_s, "");
    EXPECT_FALSE(m_writer.replace(path(u"f/g"_s))->makeFolder());
    EXPECT_FALSE(m_writer.replace(path(u"f/g/h"_s))->makeFolder());
}

TEST_F(DiskFileWriterTest, OthersAreKeptOutOfTheFolderUntilTheReplacementEnds) {
    const auto isFree = [this] {
        const int folder = ::open(QFile::encodeName(m_folder.path()).constData(), O_RDONLY);
        const bool isLocked = ::flock(folder, LOCK_EX | LOCK_NB) == 0;
        ::close(folder);
        return isLocked;
    };
    {
        const auto replacement = m_writer.replace(path(u"f"_s));
        EXPECT_TRUE(isFree());
        replacement->excludeOthers();
        EXPECT_FALSE(isFree());
    }
    EXPECT_TRUE(isFree());
}

TEST_F(DiskFileWriterTest, RenameNeverReplaces) {
    put(u"a"_s, "a");
    put(u"b"_s, "b");
    EXPECT_FALSE(m_writer.rename(path(u"a"_s), path(u"b"_s)));
    EXPECT_EQ(bytesOf(u"b"_s), "b");
    EXPECT_TRUE(m_writer.rename(path(u"a"_s), path(u"c"_s)));
    EXPECT_EQ(bytesOf(u"c"_s), "a");
    EXPECT_FALSE(m_writer.rename(path(u"a"_s), path(u"d"_s)));
}

} // namespace
} // namespace quorvane
