// SPDX-License-Identifier: MIT
#pragma once

#include <settings/FileChange.h>
#include <settings/FileWriter.h>

#include <optional>

/// A file that holds one JSON object, as a whole.
namespace quorvane::settingsfile {

enum class State {
    Absent,   ///< there is no such file
    Object,   ///< it was read
    NoObject, ///< it holds something else, or is no plain file
    Closed,   ///< it is there, but the system does not let us read it
};

struct Contents {
    State state = State::Absent;
    QJsonObject values; ///< empty but for State::Object
};

[[nodiscard]] Contents read(const QString& path);

/// See SettingsWriter::moveAside().
[[nodiscard]] std::optional<QString> moveAside(FileWriter& files, const QString& path);

/// Brings the changed values into the file as it is now, which other processes may have changed. A
/// file that has them already is left alone. False if the file, which is then as it was, could not
/// be replaced.
[[nodiscard]] bool apply(FileWriter& files, const FileChange& change);

} // namespace quorvane::settingsfile
