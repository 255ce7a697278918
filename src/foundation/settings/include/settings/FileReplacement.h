// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace quorvane {

/// The steps of replacing one file as a whole, in the order they are taken. Those that can
/// fail tell whether they succeeded. Until the last one the old file is untouched; a replacement
/// that is destroyed before it leaves no trace.
class FileReplacement {
public:
    virtual ~FileReplacement() = default;

    /// Makes the file's folder, and those above it, for their owner only.
    [[nodiscard]] virtual bool makeFolder() = 0;
    /// Waits until no other process replaces a file in the folder, and keeps them all out until
    /// this is destroyed. Does nothing where the file system has no locks.
    virtual void excludeOthers() = 0;
    [[nodiscard]] virtual bool open() = 0;
    /// Lets the owner alone read and write the new file.
    [[nodiscard]] virtual bool restrictToOwner() = 0;
    [[nodiscard]] virtual bool write(const QByteArray& contents) = 0;
    [[nodiscard]] virtual bool commit() = 0;
};

} // namespace quorvane
