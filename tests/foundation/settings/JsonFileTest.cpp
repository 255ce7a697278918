// SPDX-License-Identifier: MIT
#include "FaultyFileWriter.h"

#include <settings/JsonFile.h>
#include <testing/ImmediateSettingsWriter.h>
#include <testing/RecordingSettingsWriter.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class JsonFileTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name = u"defaults.json"_s) const {
        return m_folder.filePath(name);
    }

    void put(const QByteArray& bytes) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    [[nodiscard]] static QByteArray bytesAt(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    [[nodiscard]] QJsonObject stored() const {
        return QJsonDocument::fromJson(bytesAt(path())).object();
    }

    /// What the folder holds, so that leftovers of a failed write show.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> result;
        for (const auto& name :
             QDir(m_folder.path())
                 .entryList(
                     QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDir::Name))
            result.push_back(name.toStdString());
        return result;
    }

    QTemporaryDir m_folder;
    FaultyFileWriter m_disk;
    ImmediateSettingsWriter m_writer{m_disk};
};

using Names = std::vector<std::string>;

TEST_F(JsonFileTest, StartsEmptyWithoutAFileAndMakesNone) {
    const JsonFile file(path(), m_writer);
    EXPECT_TRUE(file.value(u"a"_s).isUndefined());
    EXPECT_EQ(names(), Names{});
}

TEST_F(JsonFileTest, KeepsWhatItDoesNotKnow) {
    put(R"({"other": {"deep": [1, null, "x"]}, "big": 9223372036854775807, "a": 1})");
    JsonFile file(path(), m_writer);
    file.setValue(u"a"_s, 2);
    EXPECT_EQ(
        stored(),
        QJsonDocument::fromJson(
            R"({"other": {"deep": [1, null, "x"]}, "big": 9223372036854775807, "a": 2})")
            .object());
    EXPECT_TRUE(bytesAt(path()).contains("9223372036854775807"));
}

TEST_F(JsonFileTest, IsForItsOwnerOnly) {
    put("{}");
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0644), 0);
    JsonFile file(path(), m_writer);
    file.setValue(u"a"_s, 1);

    struct stat status {};

    ASSERT_EQ(::stat(QFile::encodeName(path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
}

TEST_F(JsonFileTest, MakesMissingFoldersForTheirOwnerOnly) {
    JsonFile file(path(u"new/quorvane/defaults.json"_s), m_writer);
    file.setValue(u"a"_s, 1);
    for (const auto& name : {u"new"_s, u"new/quorvane"_s}) {
        struct stat status {};

        ASSERT_EQ(::stat(QFile::encodeName(path(name)).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, 0700U) << name.toStdString();
    }
}

TEST_F(JsonFileTest, EqualValueLeavesTheFileAsItIs) {
    const QByteArray json = R"({"a":[1,"x"],"beyond64Bits":12345678901234567890})";
    put(json);
    JsonFile file(path(), m_writer);
    file.setValue(u"a"_s, QJsonArray{1, u"x"_s});
    EXPECT_EQ(bytesAt(path()), json);
    file.setValue(u"a"_s, QJsonArray{1, u"y"_s});
    EXPECT_NE(bytesAt(path()), json);
}

TEST_F(JsonFileTest, FirstValueIsWrittenWhateverItIs) {
    JsonFile file(path(), m_writer);
    file.setValue(u"a"_s, QJsonValue::Null);
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, QJsonValue::Null}}));
}

TEST_F(JsonFileTest, LinkedFileStaysLinked) {
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"dotfiles"_s));
    ASSERT_TRUE(QFile::link(path(u"dotfiles/q.json"_s), path()));
    JsonFile file(path(), m_writer);
    file.setValue(u"a"_s, 1);
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_TRUE(bytesAt(path(u"dotfiles/q.json"_s)).contains("\"a\""));
}

TEST_F(JsonFileTest, UnreadableTextIsMovedAsideUnchanged) {
    for (const QByteArray& broken :
         {QByteArray(R"({"a": 1)"),
          QByteArray(),
          QByteArray("[1, 2]"),
          QByteArray("\"text\""),
          QByteArray("null"),
          QByteArray("{\"a\": 1} x"),
          QByteArray("\0\0\0\0", 4)}) {
        put(broken);
        JsonFile file(path(), m_writer);
        EXPECT_TRUE(file.value(u"a"_s).isUndefined());
        EXPECT_EQ(names(), Names{"defaults.json.unreadable-1"}) << broken.toStdString();
        file.setValue(u"b"_s, 2);
        EXPECT_EQ(stored(), (QJsonObject{{u"b"_s, 2}}));
        EXPECT_EQ(bytesAt(path(u"defaults.json.unreadable-1"_s)), broken);
        QFile::remove(path());
        QFile::remove(path(u"defaults.json.unreadable-1"_s));
    }
}

TEST_F(JsonFileTest, MovesAsideToTheFirstFreeNumber) {
    put("first");
    const JsonFile first(path(), m_writer);
    ASSERT_TRUE(QFile::link(u"nowhere"_s, path(u"defaults.json.unreadable-2"_s)));
    put("third");
    const JsonFile third(path(), m_writer);
    EXPECT_EQ(bytesAt(path(u"defaults.json.unreadable-1"_s)), "first");
    EXPECT_EQ(bytesAt(path(u"defaults.json.unreadable-3"_s)), "third");
}

TEST_F(JsonFileTest, FolderInItsPlaceIsMovedAside) {
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(u"defaults.json/inner"_s));
    JsonFile file(path(), m_writer);
    file.setValue(u"a"_s, 1);
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 1}}));
    EXPECT_TRUE(QFileInfo(path(u"defaults.json.unreadable-1/inner"_s)).isDir());
}

TEST_F(JsonFileTest, PipeInItsPlaceDoesNotBlock) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    const JsonFile file(path(), m_writer);
    EXPECT_EQ(names(), Names{"defaults.json.unreadable-1"});
}

TEST_F(JsonFileTest, WhatCannotBeMovedAsideIsNeverOverwritten) {
    put("broken");
    m_disk.fail(FileStep::Rename);
    JsonFile file(path(), m_writer);
    m_disk.recover();
    file.setValue(u"a"_s, 1);
    EXPECT_EQ(file.value(u"a"_s).toInt(), 1);
    EXPECT_EQ(bytesAt(path()), "broken");
    EXPECT_EQ(names(), Names{"defaults.json"});
}

/// Runs it, and returns what it wrote to standard error.
std::string reportsOf(const std::function<void()>& run) {
    testing::internal::CaptureStderr();
    run();
    return testing::internal::GetCapturedStderr();
}

/// A file that is there and gives the system an error: one when opened, one when read.
class JsonFileClosedTest : public JsonFileTest, public testing::WithParamInterface<const char*> {};

TEST_P(JsonFileClosedTest, StaysAsItIsAndIsReportedOnce) {
    ASSERT_TRUE(QFile::link(QString::fromUtf8(GetParam()), path()));
    const auto reports = reportsOf([&] {
        JsonFile file(path(), m_writer);
        EXPECT_TRUE(file.value(u"a"_s).isUndefined());
        file.setValue(u"a"_s, 1);
        EXPECT_EQ(file.value(u"a"_s).toInt(), 1);
    });
    EXPECT_EQ(
        reports,
        "quorvane: " + path().toStdString() +
            " cannot be read and stays as it is; changes will be lost\n");
    EXPECT_EQ(names(), Names{"defaults.json"});
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
}

INSTANTIATE_TEST_SUITE_P(
    EachError, JsonFileClosedTest, testing::Values("defaults.json", "/proc/self/mem"));

TEST_F(JsonFileTest, FileThatCannotBeReadAnyMoreIsNotReplaced) {
    JsonFile file(path(), m_writer);
    ASSERT_TRUE(QFile::link(u"/proc/self/mem"_s, path()));
    file.setValue(u"a"_s, 1);
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    QFile::remove(path());
    file.setValue(u"b"_s, 2);
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 1}, {u"b"_s, 2}}));
}

TEST_F(JsonFileTest, EachFailureIsOneLine) {
    m_disk.fail(FileStep::Commit);
    JsonFile file(path(), m_writer);
    const auto line = "quorvane: " + path().toStdString() +
                      " cannot be written; the next change and the end of the program try again\n";
    EXPECT_EQ(reportsOf([&] { file.setValue(u"a"_s, 1); }), line);
    EXPECT_EQ(reportsOf([&] { file.setValue(u"a"_s, 2); }), line);
    m_disk.recover();
    EXPECT_EQ(reportsOf([&] { file.setValue(u"a"_s, 3); }), "");
}

TEST_F(JsonFileTest, WritersOfTwoProcessesKeepEachOthersChanges) {
    put(R"({"a": 0, "b": 0, "c": 0})");
    JsonFile one(path(), m_writer);
    JsonFile other(path(), m_writer);
    one.setValue(u"a"_s, 1);
    other.setValue(u"b"_s, 2);
    one.setValue(u"c"_s, 3);
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 1}, {u"b"_s, 2}, {u"c"_s, 3}}));
}

TEST_F(JsonFileTest, FileThatBrokeMeanwhileIsMovedAsideByTheNextChange) {
    put(R"({"a": 1})");
    JsonFile file(path(), m_writer);
    put("broken");
    file.setValue(u"b"_s, 2);
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 1}, {u"b"_s, 2}}));
    EXPECT_EQ(bytesAt(path(u"defaults.json.unreadable-1"_s)), "broken");
}

TEST_F(JsonFileTest, ValuesSetTogetherAreOneChange) {
    RecordingSettingsWriter writer;
    JsonFile file(path(), writer);
    file.setTogether([&] {
        file.setValue(u"a"_s, 1);
        file.setValue(u"b"_s, 2);
    });
    ASSERT_EQ(writer.changes().size(), 1U);
    EXPECT_EQ(writer.changes().front().values, (QJsonObject{{u"a"_s, 1}, {u"b"_s, 2}}));
    EXPECT_EQ(writer.changes().front().changed, (QSet{u"a"_s, u"b"_s}));
    file.setTogether([] {});
    EXPECT_EQ(writer.changes().size(), 1U);
}

TEST_F(JsonFileTest, ChangeHoldsWhatIsNotKnownToBeWritten) {
    RecordingSettingsWriter writer;
    JsonFile file(path(), writer);
    file.setValue(u"a"_s, 1);
    file.setValue(u"b"_s, 2);
    EXPECT_EQ(writer.changes().back().changed, (QSet{u"a"_s, u"b"_s}));
    writer.tell(0, true); // says nothing of b
    file.setValue(u"c"_s, 3);
    EXPECT_EQ(writer.changes().back().changed, (QSet{u"a"_s, u"b"_s, u"c"_s}));
    writer.tell(2, true);
    file.setValue(u"d"_s, 4);
    EXPECT_EQ(writer.changes().back().changed, (QSet{u"d"_s}));
}

TEST_F(JsonFileTest, OutcomeMayComeAfterTheEnd) {
    RecordingSettingsWriter writer;
    JsonFile(path(), writer).setValue(u"a"_s, 1);
    EXPECT_EQ(reportsOf([&] { writer.tell(0, false); }), "");
}

class JsonFileFaultTest : public JsonFileTest, public testing::WithParamInterface<FileStep> {};

TEST_P(JsonFileFaultTest, FailedWriteLeavesTheOldFileAndGoesWithTheNextChange) {
    put(R"({"kept": true})");
    JsonFile file(path(), m_writer);
    m_disk.fail(GetParam());
    file.setValue(u"a"_s, 1);
    EXPECT_EQ(bytesAt(path()), R"({"kept": true})");
    EXPECT_EQ(names(), Names{"defaults.json"});
    EXPECT_EQ(file.value(u"a"_s).toInt(), 1);

    m_disk.recover();
    file.setValue(u"b"_s, 2);
    EXPECT_EQ(stored(), (QJsonObject{{u"kept"_s, true}, {u"a"_s, 1}, {u"b"_s, 2}}));
}

TEST_P(JsonFileFaultTest, EndTriesOnceMore) {
    {
        JsonFile file(path(), m_writer);
        m_disk.fail(GetParam());
        file.setValue(u"a"_s, 1);
        m_disk.recover();
    }
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 1}}));
}

TEST_F(JsonFileTest, EndWritesNothingThatTheFileHas) {
    {
        JsonFile file(path(), m_writer);
        file.setValue(u"a"_s, 1);
        put("changed by hand");
    }
    EXPECT_EQ(bytesAt(path()), "changed by hand");
}

TEST_P(JsonFileFaultTest, EqualValueIsWrittenIfTheFileLacksIt) {
    JsonFile file(path(), m_writer);
    m_disk.fail(GetParam());
    file.setValue(u"a"_s, 1);
    m_disk.recover();
    file.setValue(u"a"_s, 1);
    EXPECT_EQ(stored(), (QJsonObject{{u"a"_s, 1}}));
}

INSTANTIATE_TEST_SUITE_P(
    EachStep,
    JsonFileFaultTest,
    testing::Values(
        FileStep::MakeFolder,
        FileStep::Open,
        FileStep::RestrictToOwner,
        FileStep::Write,
        FileStep::Commit));

/// Limits how long a file may become, in this process from now on.
void limitFileSize(rlim_t bytes) {
    const rlimit limit{bytes, RLIM_INFINITY};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

TEST_F(JsonFileTest, FullDiskLeavesTheOldFileUntilThereIsRoom) {
    put(R"({"kept": true})");
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN); // so that writing fails with EFBIG
        ImmediateSettingsWriter disk;
        JsonFile file(path(), disk);
        limitFileSize(100);
        file.setValue(u"long"_s, QString(4000, u'x'));
        const bool isIntact = bytesAt(path()) == R"({"kept": true})";
        limitFileSize(RLIM_INFINITY);
        file.setValue(u"next"_s, 1);
        ::_exit(isIntact ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(
        stored(),
        (QJsonObject{{u"kept"_s, true}, {u"long"_s, QString(4000, u'x')}, {u"next"_s, 1}}));
    EXPECT_EQ(names(), Names{"defaults.json"});
}

} // namespace
} // namespace quorvane
