// SPDX-License-Identifier: MIT
#include <settings/SettingsFile.h>
#include <settings/ThreadSettingsWriter.h>

#include <algorithm>
#include <utility>

namespace quorvane {

ThreadSettingsWriter::ThreadSettingsWriter(FileWriter& files, MainQueue& queue)
    : m_files(files),
      m_queue(queue) {
}

ThreadSettingsWriter::~ThreadSettingsWriter() {
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
    }
    m_news.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void ThreadSettingsWriter::write(FileChange change, Outcome outcome) {
    {
        const std::lock_guard lock(m_mutex);
        const auto sameFile = [&](const Job& job) {
            return job.change.path == change.path;
        };
        std::erase_if(m_waiting, sameFile);
        m_waiting.push_back({std::move(change), std::move(outcome)});
    }
    m_news.notify_all();
    if (!m_thread.joinable())
        m_thread = std::thread([this] { work(); });
}

std::optional<QString> ThreadSettingsWriter::moveAside(const QString& path) {
    return settingsfile::moveAside(m_files, path);
}

bool ThreadSettingsWriter::finish(std::chrono::milliseconds patience) {
    std::unique_lock lock(m_mutex);
    return m_news.wait_for(lock, patience, [this] { return m_waiting.empty() && !m_isWriting; });
}

void ThreadSettingsWriter::work() {
    std::unique_lock lock(m_mutex);
    while (true) {
        m_news.wait(lock, [this] { return m_ends || !m_waiting.empty(); });
        if (m_waiting.empty())
            return;
        auto job = std::move(m_waiting.front());
        m_waiting.pop_front();
        m_isWriting = true;
        lock.unlock();
        perform(std::move(job));
        lock.lock();
        m_isWriting = false;
        m_news.notify_all();
    }
}

void ThreadSettingsWriter::perform(Job job) {
    const bool isWritten = settingsfile::apply(m_files, job.change);
    m_queue.async([outcome = std::move(job.outcome), isWritten] { outcome(isWritten); });
}

} // namespace quorvane
