// SPDX-License-Identifier: MIT
#pragma once

#include "support/ForeignContents.h"

#include <atomic>
#include <thread>
#include <vector>

namespace quorvane {

/// Other programs that write what they have copied, each for itself, as blindly as programs do.
class ForeignWriters {
public:
    ForeignWriters() = default;
    ~ForeignWriters();

    ForeignWriters(const ForeignWriters&) = delete;
    ForeignWriters& operator=(const ForeignWriters&) = delete;

    void write(int descriptor, const ForeignType& contents);

    /// How many pipes have been closed to a writer in the middle.
    [[nodiscard]] int brokenPipes() const { return m_brokenPipes; }

    /// Bytes in all.
    [[nodiscard]] qsizetype written() const { return m_written; }

private:
    void serve(int descriptor, const ForeignType& contents);
    [[nodiscard]] bool writeAll(int descriptor, const QByteArray& bytes);

    std::vector<std::thread> m_threads;
    std::vector<int> m_silent;
    std::atomic<int> m_brokenPipes = 0;
    std::atomic<qsizetype> m_written = 0;
};

} // namespace quorvane
