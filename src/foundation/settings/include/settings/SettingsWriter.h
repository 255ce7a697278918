// SPDX-License-Identifier: MIT
#pragma once

#include <settings/FileChange.h>

#include <functional>
#include <optional>

namespace quorvane {

/// What brings settings to the disk. A file may have several writers, other processes among them:
/// each writes the keys that it has changed, and no two at a time.
class SettingsWriter {
public:
    /// What became of a change: whether the file has it now.
    using Outcome = std::function<void(bool isWritten)>;

    virtual ~SettingsWriter() = default;

    /// Writes a change, sooner or later, and tells the outcome on the main thread. A later change
    /// of the same file must hold what an earlier one held: it takes the place of one that has not
    /// begun, whose outcome is then never told.
    virtual void write(FileChange change, Outcome outcome) = 0;

    /// Renames what is at the path to "NAME.unreadable-N", with the first N that is free, and
    /// returns the new path; none if it cannot be moved.
    [[nodiscard]] virtual std::optional<QString> moveAside(const QString& path) = 0;
};

} // namespace quorvane
