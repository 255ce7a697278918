// SPDX-License-Identifier: MIT
#pragma once

#include <settings/DiskFileWriter.h>

#include <memory>
#include <set>

namespace quorvane {

enum class FileStep { MakeFolder, Open, RestrictToOwner, Write, Commit, Rename };

/// The disk, with steps that fail while the test says so.
class FaultyFileWriter final : public FileWriter {
public:
    [[nodiscard]] std::unique_ptr<FileReplacement> replace(const QString& path) override {
        return std::make_unique<Replacement>(m_disk.replace(path), m_failing);
    }

    [[nodiscard]] bool rename(const QString& from, const QString& to) override {
        return !m_failing.contains(FileStep::Rename) && m_disk.rename(from, to);
    }

    void fail(FileStep step) { m_failing.insert(step); }

    void recover() { m_failing.clear(); }

private:
    class Replacement final : public FileReplacement {
    public:
        Replacement(std::unique_ptr<FileReplacement> real, const std::set<FileStep>& failing)
            : m_real(std::move(real)),
              m_failing(failing) {}

        bool makeFolder() override { return works(FileStep::MakeFolder) && m_real->makeFolder(); }

        void excludeOthers() override { m_real->excludeOthers(); }

        bool open() override { return works(FileStep::Open) && m_real->open(); }

        bool restrictToOwner() override {
            return works(FileStep::RestrictToOwner) && m_real->restrictToOwner();
        }

        bool write(const QByteArray& contents) override {
            // Half of it arrives, as on a disk that fills up.
            if (works(FileStep::Write))
                return m_real->write(contents);
            static_cast<void>(m_real->write(contents.first(contents.size() / 2)));
            return false;
        }

        bool commit() override { return works(FileStep::Commit) && m_real->commit(); }

    private:
        [[nodiscard]] bool works(FileStep step) const { return !m_failing.contains(step); }

        std::unique_ptr<FileReplacement> m_real;
        const std::set<FileStep>& m_failing;
    };

    DiskFileWriter m_disk;
    std::set<FileStep> m_failing;
};

} // namespace quorvane
