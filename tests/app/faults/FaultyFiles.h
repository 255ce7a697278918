// SPDX-License-Identifier: MIT
#pragma once

#include "FaultyReplacement.h"

#include <settings/DiskFileWriter.h>

namespace quorvane {

/// The disk, on which any step of a replacement may fail.
class FaultyFiles final : public FileWriter {
public:
    explicit FaultyFiles(FaultPlan& plan) : m_plan(plan) {}

    [[nodiscard]] std::unique_ptr<FileReplacement> replace(const QString& path) override {
        return std::make_unique<FaultyReplacement>(m_disk.replace(path), m_plan);
    }

    [[nodiscard]] bool rename(const QString& from, const QString& to) override {
        return !m_plan.strikes("FileWriter::rename") && m_disk.rename(from, to);
    }

private:
    FaultPlan& m_plan;
    DiskFileWriter m_disk;
};

} // namespace quorvane
