// SPDX-License-Identifier: MIT
#include <settings/UserFolders.h>

#include <QProcess>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <unistd.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

UserFolders foldersFrom(std::map<std::string, QString> variables) {
    return UserFolders::fromEnvironment([variables](const char* name) -> std::optional<QString> {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional(found->second);
    });
}

TEST(UserFolders, FollowTheVariables) {
    const auto folders = foldersFrom(
        {{"HOME", u"/home/ada"_s}, {"XDG_CONFIG_HOME", u"/c"_s}, {"XDG_STATE_HOME", u"/s"_s}});
    EXPECT_EQ(folders.defaultsFile(), u"/c/quorvane/defaults.json"_s);
    EXPECT_EQ(folders.windowsFile(), u"/s/quorvane/windows.json"_s);
}

TEST(UserFolders, AreInTheHomeFolderByDefault) {
    const auto folders = foldersFrom({{"HOME", u"/home/ada"_s}, {"XDG_CONFIG_HOME", u""_s}});
    EXPECT_EQ(folders.defaultsFile(), u"/home/ada/.config/quorvane/defaults.json"_s);
    EXPECT_EQ(folders.windowsFile(), u"/home/ada/.local/state/quorvane/windows.json"_s);
}

TEST(UserFolders, HomeIsThatOfTheUsersEntryWhereTheVariableIsNotSet) {
    QProcess getent;
    getent.start(u"getent"_s, {u"passwd"_s, QString::number(::getuid())});
    ASSERT_TRUE(getent.waitForFinished());
    const auto home = QString::fromLocal8Bit(getent.readAll()).section(u':', 5, 5);
    const auto folders = foldersFrom({});
    EXPECT_EQ(folders.config, home + u"/.config/quorvane"_s);
    EXPECT_EQ(folders.state, home + u"/.local/state/quorvane"_s);
}

TEST(UserFolders, RelativePathsCountAsNotSet) {
    const auto folders = foldersFrom(
        {{"HOME", u"/home/ada"_s}, {"XDG_CONFIG_HOME", u"c"_s}, {"XDG_STATE_HOME", u"./s"_s}});
    EXPECT_EQ(folders.config, u"/home/ada/.config/quorvane"_s);
    EXPECT_EQ(folders.state, u"/home/ada/.local/state/quorvane"_s);
}

} // namespace
} // namespace quorvane
