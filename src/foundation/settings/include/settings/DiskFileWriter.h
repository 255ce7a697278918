// SPDX-License-Identifier: MIT
#pragma once

#include <settings/FileWriter.h>

namespace quorvane {

/// Files on disk. A replaced file that is a link stays one; its target is replaced.
class DiskFileWriter final : public FileWriter {
public:
    [[nodiscard]] std::unique_ptr<FileReplacement> replace(const QString& path) override;
    [[nodiscard]] bool rename(const QString& from, const QString& to) override;
};

} // namespace quorvane
