// SPDX-License-Identifier: MIT
#include <platform_xdg/IniFile.h>
#include <platform_xdg/XdgAutostart.h>

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const auto name = u"autostart/org.quorvane.Quorvane.desktop"_s;
const QByteArray foreign("[Desktop Entry]\nType=Application\nName=Mine\nExec=nice quorvane\n");

class XdgAutostartTest : public testing::Test {
protected:
    static void write(const QTemporaryDir& folder, const QByteArray& content) {
        QDir(folder.path()).mkpath(u"autostart"_s);
        QSaveFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        ASSERT_TRUE(file.commit());
    }

    [[nodiscard]] QString value(const QString& key) const {
        return IniFile::read(m_own.filePath(name)).value(u"Desktop Entry"_s, key).value_or(u"-"_s);
    }

    [[nodiscard]] bool hasEntry() const { return QFile::exists(m_own.filePath(name)); }

    QTemporaryDir m_own;
    QTemporaryDir m_system;
    XdgAutostart m_autostart{{m_own.path(), m_system.path()}};
};

TEST_F(XdgAutostartTest, IsOffAtFirstAndLeavesNoFile) {
    EXPECT_TRUE(m_autostart.isAvailable());
    EXPECT_FALSE(m_autostart.isOn());
    m_autostart.setOn(false);
    EXPECT_TRUE(QDir(m_own.path()).isEmpty());
}

TEST_F(XdgAutostartTest, EntryStartsTheProgramHiddenAsLongAsThereIsOne) {
    m_autostart.setOn(true);
    EXPECT_TRUE(m_autostart.isOn());
    EXPECT_EQ(value(u"Type"_s), u"Application"_s);
    EXPECT_EQ(value(u"Name"_s), u"Quorvane"_s);
    EXPECT_EQ(value(u"Exec"_s), u"quorvane --hidden"_s);
    EXPECT_EQ(value(u"TryExec"_s), u"quorvane"_s);
    EXPECT_EQ(value(u"Hidden"_s), u"-"_s);
    EXPECT_EQ(QDir(m_own.filePath(u"autostart"_s)).entryList(QDir::Files).size(), 1);
}

TEST_F(XdgAutostartTest, OffTakesTheEntryAway) {
    m_autostart.setOn(true);
    m_autostart.setOn(false);
    EXPECT_FALSE(m_autostart.isOn());
    EXPECT_FALSE(hasEntry());
}

TEST_F(XdgAutostartTest, EntryThatTheDesktopHasSwitchedOffCountsAsOff) {
    for (const auto* line : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        write(m_own, foreign + line);
        EXPECT_FALSE(m_autostart.isOn()) << line;
        m_autostart.setOn(true);
        EXPECT_TRUE(m_autostart.isOn()) << line;
    }
    write(m_own, "");
    EXPECT_FALSE(m_autostart.isOn());
}

TEST_F(XdgAutostartTest, EntryThatTheUserHasChangedStaysAsItIs) {
    write(m_own, foreign);
    EXPECT_TRUE(m_autostart.isOn());
    m_autostart.setOn(true);
    EXPECT_EQ(value(u"Exec"_s), u"nice quorvane"_s);
}

TEST_F(XdgAutostartTest, EntryOfTheSystemIsOutweighed) {
    write(m_system, foreign);
    EXPECT_TRUE(m_autostart.isOn());
    m_autostart.setOn(false);
    EXPECT_FALSE(m_autostart.isOn());
    EXPECT_EQ(value(u"Hidden"_s), u"true"_s);
    m_autostart.setOn(true);
    EXPECT_TRUE(m_autostart.isOn());
}

TEST_F(XdgAutostartTest, WhatOthersDecideIsTold) {
    bool told = false;
    m_autostart.onChanged([&] { told = m_autostart.isOn(); });
    write(m_own, foreign);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told; }));
    QFile file(m_own.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("Hidden=true\n");
    file.close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !told; }));
    write(m_own, foreign);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told; }));
    ASSERT_TRUE(QDir(m_own.filePath(u"autostart"_s)).removeRecursively());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !told; }));
    write(m_own, foreign);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told; }));
}

TEST_F(XdgAutostartTest, FolderOfSettingsMayBeMissing) {
    XdgAutostart autostart({m_own.filePath(u"not/yet"_s)});
    int changes = 0;
    autostart.onChanged([&] { ++changes; });
    autostart.setOn(true);
    EXPECT_TRUE(autostart.isOn());
    EXPECT_EQ(changes, 1);
    QFile::remove(m_own.filePath(u"not/yet/"_s + name));
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes > 1; }));
}

TEST_F(XdgAutostartTest, WhatCannotBeWrittenIsOneLineAndStaysOff) {
    QFile file(m_own.filePath(u"autostart"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    int changes = 0;
    m_autostart.onChanged([&] { ++changes; });
    testing::internal::CaptureStderr();
    m_autostart.setOn(true);
    EXPECT_EQ(std::ranges::count(testing::internal::GetCapturedStderr(), '\n'), 1);
    EXPECT_FALSE(m_autostart.isOn());
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace quorvane
