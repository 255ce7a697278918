// SPDX-License-Identifier: MIT
#pragma once

#include <settings/FileReplacement.h>

#include <QString>

#include <memory>

namespace quorvane {

/// What changes files.
class FileWriter {
public:
    virtual ~FileWriter() = default;

    [[nodiscard]] virtual std::unique_ptr<FileReplacement> replace(const QString& path) = 0;

    /// Renames whatever is at `from`; fails if there is anything at `to`.
    [[nodiscard]] virtual bool rename(const QString& from, const QString& to) = 0;
};

} // namespace quorvane
