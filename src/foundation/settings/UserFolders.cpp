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

QString homeIn(const Environment& environment) {
    return absolutePathOr(environment("HOME"), homeOfUser());
}

QString configHome(const Environment& environment) {
    return absolutePathOr(environment("XDG_CONFIG_HOME"), homeIn(environment) + u"/.config"_s);
}

} // namespace

UserFolders UserFolders::fromEnvironment(const Environment& environment) {
    const auto state =
        absolutePathOr(environment("XDG_STATE_HOME"), homeIn(environment) + u"/.local/state"_s);
    return {configHome(environment) + u"/quorvane"_s, state + u"/quorvane"_s};
}

QString UserFolders::defaultsFile() const {
    return config + u"/defaults.json"_s;
}

QString UserFolders::windowsFile() const {
    return state + u"/windows.json"_s;
}

QStringList settingsFolders(const Environment& environment) {
    QStringList folders{configHome(environment)};
    const auto system = environment("XDG_CONFIG_DIRS").value_or(QString());
    for (const auto& folder : (system.isEmpty() ? u"/etc/xdg"_s : system).split(u':')) {
        if (QDir::isAbsolutePath(folder))
            folders.append(folder);
    }
    return folders;
}

} // namespace quorvane
