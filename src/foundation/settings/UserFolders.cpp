// SPDX-License-Identifier: MIT
#include <settings/UserFolders.h>

#include <QDir>
#include <QFile>

#include <array>
#include <pwd.h>
#include <sys/types.h>
#include <unistd.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QString absolutePathOr(const std::optional<QString>& path, const QString& fallback) {
    return path && QDir::isAbsolutePath(*path) ? *path : fallback;
}

/// As the system's list of users has it.
QString homeOfUser() {
    constexpr std::size_t longestEntry = 16384;
    std::array<char, longestEntry> texts{};
    passwd entry{};
    passwd* found = nullptr;
    ::getpwuid_r(::getuid(), &entry, texts.data(), texts.size(), &found);
    return found == nullptr ? QDir::homePath() : QFile::decodeName(found->pw_dir);
}

} // namespace

UserFolders UserFolders::fromEnvironment(const Environment& environment) {
    const auto home = absolutePathOr(environment("HOME"), homeOfUser());
    const auto config = absolutePathOr(environment("XDG_CONFIG_HOME"), home + u"/.config"_s);
    const auto state = absolutePathOr(environment("XDG_STATE_HOME"), home + u"/.local/state"_s);
    return {config + u"/quorvane"_s, state + u"/quorvane"_s};
}

QString UserFolders::defaultsFile() const {
    return config + u"/defaults.json"_s;
}

QString UserFolders::windowsFile() const {
    return state + u"/windows.json"_s;
}

} // namespace quorvane
