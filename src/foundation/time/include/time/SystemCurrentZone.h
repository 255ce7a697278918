// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>
#include <time/CurrentZone.h>
#include <time/ZoneDatabase.h>

#include <filesystem>

namespace quorvane {

/// The zone that the C library would use: the environment's TZ, else /etc/localtime, under its
/// identifier; an old name as the listed zone that it leads to. UTC where neither names a known
/// zone, which is reported once for each text that is set.
class SystemCurrentZone final : public CurrentZone {
public:
    /// `zones` must outlive this; `root` stands for "/".
    SystemCurrentZone(
        const ZoneDatabase& zones, Environment environment, std::filesystem::path root = "/");

    [[nodiscard]] TimeZone current() const override;

    /// The file by which the zone is set, whether it exists or not; empty where TZ names a zone.
    [[nodiscard]] static QString settingFile(const Environment& environment);

private:
    using Path = std::filesystem::path;

    [[nodiscard]] QString identifier() const;
    [[nodiscard]] QString identifierOfFile(Path file) const;
    [[nodiscard]] QString tailInDatabase(const Path& file) const;
    [[nodiscard]] QString identifierOfCopy(const Path& file) const;
    [[nodiscard]] bool isCopyOf(const Path& file, const QString& identifier) const;

    const ZoneDatabase& m_zones;
    Environment m_environment;
    Path m_root;
    mutable QString m_reported; ///< what was no zone when it was last asked for
};

} // namespace quorvane
