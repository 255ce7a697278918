// SPDX-License-Identifier: MIT
#pragma once

#include <settings/DiskFileWriter.h>

#include <atomic>
#include <memory>
#include <semaphore>

namespace quorvane {

/// A disk that takes a new file and then does not answer, until it is let go.
class HangingFileWriter final : public FileWriter {
public:
    [[nodiscard]] std::unique_ptr<FileReplacement> replace(const QString& path) override {
        return std::make_unique<Replacement>(m_disk.replace(path), *this);
    }

    [[nodiscard]] bool rename(const QString& from, const QString& to) override {
        return m_disk.rename(from, to);
    }

    /// Returns when a writer hangs.
    void awaitWriter() { m_arrivals.acquire(); }

    /// From now on the disk answers.
    void letGo() {
        m_isHanging = false;
        m_way.release();
    }

    /// How many files have been replaced.
    [[nodiscard]] int commits() const { return m_commits; }

private:
    class Replacement final : public FileReplacement {
    public:
        Replacement(std::unique_ptr<FileReplacement> real, HangingFileWriter& disk)
            : m_real(std::move(real)),
              m_disk(disk) {}

        bool makeFolder() override { return m_real->makeFolder(); }

        void excludeOthers() override { m_real->excludeOthers(); }

        bool open() override { return m_real->open(); }

        bool restrictToOwner() override { return m_real->restrictToOwner(); }

        bool write(const QByteArray& contents) override { return m_real->write(contents); }

        bool commit() override {
            if (m_disk.m_isHanging) {
                m_disk.m_arrivals.release();
                m_disk.m_way.acquire();
            }
            ++m_disk.m_commits;
            return m_real->commit();
        }

    private:
        std::unique_ptr<FileReplacement> m_real;
        HangingFileWriter& m_disk;
    };

    DiskFileWriter m_disk;
    std::counting_semaphore<> m_arrivals{0};
    std::counting_semaphore<> m_way{0};
    std::atomic<bool> m_isHanging = true;
    std::atomic<int> m_commits = 0;
};

} // namespace quorvane
