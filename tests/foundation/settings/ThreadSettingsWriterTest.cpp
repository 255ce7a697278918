// SPDX-License-Identifier: MIT
#include "FaultyFileWriter.h"

#include <loop/QtMainQueue.h>
#include <settings/JsonFile.h>
#include <settings/ThreadSettingsWriter.h>
#include <testing/HangingFileWriter.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr auto unboundedly = 60s; // the test would have failed long before

class ThreadSettingsWriterTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name = u"f.json"_s) const {
        return m_folder.filePath(name);
    }

    [[nodiscard]] QJsonObject stored() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                              : QJsonObject();
    }

    QtMainQueue m_queue;

private:
    QTemporaryDir m_folder;
};

FileChange change(const QString& path, const QString& key, int value) {
    return {path, {{key, value}}, {key}};
}

TEST_F(ThreadSettingsWriterTest, TimerFiresWhileTheDiskHangs) {
    HangingFileWriter disk;
    ThreadSettingsWriter writer(disk, m_queue);
    JsonFile file(path(), writer);
    file.setValue(u"a"_s, 1);
    disk.awaitWriter();
    bool hasFired = false;
    const auto timer = m_queue.after(Seconds(0.01), [&] { hasFired = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return hasFired; }));
    EXPECT_EQ(file.value(u"a"_s).toInt(), 1);
    EXPECT_EQ(stored(), QJsonObject());
    disk.letGo();
}

TEST_F(ThreadSettingsWriterTest, EndWaitsForWhatIsStillToBeWritten) {
    HangingFileWriter disk;
    {
        ThreadSettingsWriter writer(disk, m_queue);
        JsonFile file(path(), writer);
        file.setValue(u"a"_s, 1);
        disk.awaitWriter();
        file.setValue(u"b"_s, 2);
        EXPECT_FALSE(writer.finish(10ms));
        disk.letGo();
    }
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 1}, {u"b"_s, 2}}));
}

TEST_F(ThreadSettingsWriterTest, ChangesDuringAWriteAreOneWrite) {
    HangingFileWriter disk;
    ThreadSettingsWriter writer(disk, m_queue);
    JsonFile file(path(), writer);
    file.setValue(u"a"_s, 0);
    disk.awaitWriter();
    for (int value = 1; value <= 50; ++value)
        file.setValue(u"a"_s, value);
    file.setValue(u"b"_s, 1);
    disk.letGo();
    EXPECT_TRUE(writer.finish(unboundedly));
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 50}, {u"b"_s, 1}}));
    EXPECT_EQ(disk.commits(), 2);
}

TEST_F(ThreadSettingsWriterTest, FilesDoNotReplaceOneAnother) {
    HangingFileWriter disk;
    ThreadSettingsWriter writer(disk, m_queue);
    const auto nothing = [](bool) {
    };
    writer.write(change(path(u"hangs"_s), u"a"_s, 1), nothing);
    disk.awaitWriter();
    writer.write(change(path(), u"a"_s, 1), nothing);
    writer.write(change(path(u"other"_s), u"a"_s, 2), nothing);
    disk.letGo();
    EXPECT_TRUE(writer.finish(unboundedly));
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 1}}));
    EXPECT_EQ(disk.commits(), 3);
}

TEST_F(ThreadSettingsWriterTest, WaitsForAnotherProcessThatWritesInTheFolder) {
    const auto folder = QFile::encodeName(QFileInfo(path()).path());
    const int others = ::open(folder.constData(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(others, LOCK_EX), 0);
    DiskFileWriter disk;
    ThreadSettingsWriter writer(disk, m_queue);
    writer.write(change(path(), u"a"_s, 1), [](bool) {});
    EXPECT_FALSE(writer.finish(50ms));
    EXPECT_EQ(stored(), QJsonObject());
    ::close(others);
    EXPECT_TRUE(writer.finish(unboundedly));
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 1}}));
}

TEST_F(ThreadSettingsWriterTest, OutcomeIsToldOnTheMainThread) {
    FaultyFileWriter disk;
    disk.fail(FileStep::Commit);
    ThreadSettingsWriter writer(disk, m_queue);
    bool isTold = false;
    const auto* here = QThread::currentThread();
    writer.write(change(path(), u"a"_s, 1), [&](bool isWritten) {
        EXPECT_FALSE(isWritten);
        EXPECT_EQ(QThread::currentThread(), here);
        isTold = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isTold; }));
}

TEST_F(ThreadSettingsWriterTest, NothingToWriteIsFinished) {
    DiskFileWriter disk;
    ThreadSettingsWriter writer(disk, m_queue);
    EXPECT_TRUE(writer.finish(0ms));
}

} // namespace
} // namespace quorvane
