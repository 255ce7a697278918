// SPDX-License-Identifier: MIT
#pragma once

#include <settings/DiskFileWriter.h>
#include <settings/SettingsFile.h>
#include <settings/SettingsWriter.h>

namespace quorvane {

/// Has every change on the disk when write() returns, and the outcome told.
class ImmediateSettingsWriter final : public SettingsWriter {
public:
    ImmediateSettingsWriter() : m_files(m_disk) {}

    /// `files` must outlive this.
    explicit ImmediateSettingsWriter(FileWriter& files) : m_files(files) {}

    void write(FileChange change, Outcome outcome) override {
        outcome(settingsfile::apply(m_files, change));
    }

    [[nodiscard]] std::optional<QString> moveAside(const QString& path) override {
        return settingsfile::moveAside(m_files, path);
    }

private:
    DiskFileWriter m_disk;
    FileWriter& m_files;
};

} // namespace quorvane
