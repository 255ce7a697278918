// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <settings/FileWriter.h>
#include <settings/SettingsWriter.h>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace quorvane {

/// Writes on a thread of its own, which the first change starts: a disk that takes its time, or
/// does not answer at all, keeps nobody waiting but this object's destructor. The two threads share
/// nothing but changes on their way in and outcomes on their way out.
class ThreadSettingsWriter final : public SettingsWriter {
public:
    /// Both must outlive this; `files` is used by the other thread from then on, `queue` has to
    /// take tasks from there.
    ThreadSettingsWriter(FileWriter& files, MainQueue& queue);

    /// Returns when every change is on the disk, or has failed to get there.
    ~ThreadSettingsWriter() override;

    ThreadSettingsWriter(const ThreadSettingsWriter&) = delete;
    ThreadSettingsWriter& operator=(const ThreadSettingsWriter&) = delete;

    void write(FileChange change, Outcome outcome) override;
    [[nodiscard]] std::optional<QString> moveAside(const QString& path) override;

    /// Waits until nothing is left to write; false if that takes longer than `patience`.
    [[nodiscard]] bool finish(std::chrono::milliseconds patience);

private:
    struct Job {
        FileChange change;
        Outcome outcome;
    };

    void work();
    void perform(Job job);

    FileWriter& m_files;
    MainQueue& m_queue;
    std::mutex m_mutex; ///< of all that follows, but for the thread
    std::condition_variable m_news;
    std::deque<Job> m_waiting;
    bool m_isWriting = false;
    bool m_ends = false;
    std::thread m_thread; ///< none before the first change
};

} // namespace quorvane
