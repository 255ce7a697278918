// SPDX-License-Identifier: MIT
#include <settings/UserFolders.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

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

TEST(UserFolders, RelativePathsCountAsNotSet) {
    const auto folders = foldersFrom(
        {{"HOME", u"/home/ada"_s}, {"XDG_CONFIG_HOME", u"c"_s}, {"XDG_STATE_HOME", u"./s"_s}});
    EXPECT_EQ(folders.config, u"/home/ada/.config/quorvane"_s);
    EXPECT_EQ(folders.state, u"/home/ada/.local/state/quorvane"_s);
}

} // namespace
} // namespace quorvane
